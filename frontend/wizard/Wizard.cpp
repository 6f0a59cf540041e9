#include "wizard/Wizard.h"

#include "MediatorRun.h"
#include "widgets/ButtonWithIcon.h"

#include <QTranslator>

namespace Vorlan::FrontEnd
{

Wizard::Wizard()
{
    const ButtonBar* buttons = window.Buttons();
    QObject::connect(buttons->Forward(), &QPushButton::clicked, [this] { GoForward(); });
    QObject::connect(buttons->Back(), &QPushButton::clicked, [this] { GoBack(); });
    window.closeRequested = [this] { RequestClose(); };
}

Wizard::~Wizard() = default;

Outcome Wizard::Run()
{
    window.show();
    window.activateWindow();
    OnShown();
    if (!isOver)
        loop.exec();
    window.hide();
    return outcome;
}

void Wizard::SetLanguage(const QString& locale)
{
    translator.reset(); // before the next one: missing translations must not use it
    translator = InstallTranslation(locale);
    language = locale;
    window.Retranslate(locale);
    if (window.Current() != nullptr)
        window.SetLabels(Labels());
}

void Wizard::ShowPage(Page* page)
{
    window.SetLabels(Labels());
    window.Show(page);
}

void Wizard::Leave(const Outcome& result)
{
    outcome = result;
    isOver = true;
    loop.quit();
}

} // namespace Vorlan::FrontEnd
