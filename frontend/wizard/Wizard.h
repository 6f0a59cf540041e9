#pragma once

#include "Outcome.h"
#include "wizard/WizardWindow.h"

#include <QEventLoop>

#include <memory>

class QTranslator;

namespace Vorlan::FrontEnd
{

// Base class of the wizards: a window with pages and an outcome. Derived classes define the action
// of the buttons for each page. On the GUI thread only.
class Wizard
{
public:
    Wizard();
    virtual ~Wizard();
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    WizardWindow& Window() { return window; }

    // Shows the window and processes events until Leave.
    Outcome Run();

    bool IsOver() const { return isOver; }
    const Outcome& Result() const { return outcome; }

protected:
    virtual void GoForward() = 0;
    virtual void GoBack() {}
    virtual void RequestClose() = 0;
    virtual ButtonBar::Labels Labels() const = 0;
    // Called once, when the window is shown.
    virtual void OnShown() {}

    // Switches all texts and pictures to this language.
    void SetLanguage(const QString& locale);
    const QString& Language() const { return language; }

    void ShowPage(Page* page);
    void Leave(const Outcome& result);

    WizardWindow window;

private:
    QEventLoop loop;
    Outcome outcome;
    bool isOver = false;
    QString language;
    std::unique_ptr<QTranslator> translator;
};

} // namespace Vorlan::FrontEnd
