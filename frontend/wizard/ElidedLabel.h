#pragma once

#include <QLabel>

namespace Vorlan::FrontEnd
{

// One line of text that never asks for more room than there is: what does not fit is left out in
// the middle. The whole text is the tool tip, and what is read aloud.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Vorlan::FrontEnd
