#pragma once

#include "base/Export.h"

#include <QPushButton>

#include <memory>

namespace Vorlan
{

/// A push button with a label and, beside it, an area that the program's style sheet paints with an
/// icon ("buttonIcon"). The button's own text is not used. To be used on the application's thread.
class INSTALLER_EXPORT ButtonWithIcon : public QPushButton
{
    Q_OBJECT

public:
    /// Makes a button of 205 by 50 pixels without a text; the parent owns it.
    explicit ButtonWithIcon(QWidget* parent);
    ~ButtonWithIcon() override;

    /// Sets the text of the label, as plain or rich text; hides QAbstractButton::setText.
    void setText(const QString& text);

private:
    struct Form;

    std::unique_ptr<Form> form;
};

} // namespace Vorlan
