#pragma once

#include "installer/Export.h"

#include <QPushButton>

#include <memory>

namespace Vorlan
{

// A push button with a label and, beside it, an area that the program's style sheet paints with an
// icon ("buttonIcon"). The button's own text is not used.
class INSTALLER_EXPORT ButtonWithIcon : public QPushButton
{
    Q_OBJECT

public:
    explicit ButtonWithIcon(QWidget* parent);
    ~ButtonWithIcon() override;

    // Sets the text of the label.
    void setText(const QString& text);

private:
    struct Form;

    std::unique_ptr<Form> form;
};

} // namespace Vorlan
