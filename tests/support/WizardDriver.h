#pragma once

#include "wizard/Page.h"
#include "wizard/Wizard.h"

#include <QString>

#include <functional>

// Works a wizard as a person does: by keys and clicks on what is shown.
class WizardDriver
{
public:
    explicit WizardDriver(Vorlan::FrontEnd::Wizard& driven);

    std::string PageName() const;

    // Presses a key where the focus is, as the screen would; on the box in front where there is
    // one.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const QString& text);
    void Click(const char* name);
    // Moves the focus with the tabulator to the control of this name; false when it never gets
    // there.
    bool TabTo(const char* name);

    template <class Widget>
    Widget* Find(const char* name) const
    {
        auto* widget = wizard.Window().Current()->findChild<Widget*>(name);
        return widget != nullptr ? widget : wizard.Window().findChild<Widget*>(name);
    }

    // Does something that opens a box, and then what `work` does with the box: by default closes it
    // with Escape. Returns the text of the box.
    static QString WithBox(
        const std::function<void()>& open, const std::function<void(QWidget&)>& work = {});

    // Waits until the pages have examined on another thread what was typed.
    void WaitForExamination() const;

private:
    Vorlan::FrontEnd::Wizard& wizard;
};
