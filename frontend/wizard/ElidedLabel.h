#pragma once

#include <QLabel>

namespace Vorlan::FrontEnd
{

// One line of text without a minimum width: a text that does not fit is elided in the middle. The
// complete text is the accessible name.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Vorlan::FrontEnd
