#pragma once

#include "Outcome.h"
#include "wizard/WizardWindow.h"

#include <QEventLoop>

#include <memory>

class QTranslator;

namespace Vorlan::FrontEnd
{

// A window with its pages, from its first moment to its outcome. What the buttons do depends on
// where it is: derived classes say so. On the application's thread.
class Wizard
{
public:
    Wizard();
    virtual ~Wizard();
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    WizardWindow& Window() { return window; }

    // Shows the window and handles events until the person leaves.
    Outcome Run();

    bool IsOver() const { return isOver; }
    const Outcome& Result() const { return outcome; }

protected:
    virtual void GoForward() = 0;
    virtual void GoBack() {}
    virtual void RequestClose() = 0;
    virtual ButtonBar::Labels Labels() const = 0;

    // Shows all texts and pictures in this language.
    void SpeakLanguage(const QString& locale);
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
