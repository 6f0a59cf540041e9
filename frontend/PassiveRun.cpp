#include "PassiveRun.h"

#include "MediatorRun.h"
#include "SilentRun.h"
#include "WindowedRun.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/ProgressPage.h"
#include "wizard/WizardWindow.h"

#include <QCoreApplication>
#include <QTranslator>

namespace Vorlan::FrontEnd
{
namespace
{

class PassiveWindow
{
public:
    PassiveWindow(const QString& language, const QStringList& layers, const char* headingText)
        : translator(InstallTranslation(language)), page(new ProgressPage(layers, headingText))
    {
        window.Add(page);
        window.Retranslate(language);
        window.SetLabels({});
        window.Show(page);
        window.show();
        QCoreApplication::processEvents(); // drawn before the first step
    }

    // Shows the events that it passes on.
    EventSink Show(const EventSink& sink)
    {
        return [this, sink](const RunEvent& event)
        {
            sink(event);
            page->Show(event);
        };
    }

private:
    std::unique_ptr<QTranslator> translator;
    WizardWindow window;
    ProgressPage* page; // owned by the window
};

} // namespace

Outcome InstallPassively(const CommandLine& options, const EventSink& sink)
{
    PassiveWindow window(FirstLanguage(options), LayerSets::installProgress,
        QT_TRANSLATE_NOOP("Wizard", "Installing %1"));
    return InstallSilently(options, window.Show(sink));
}

Outcome UninstallPassively(const CommandLine& options, const EventSink& sink)
{
    PassiveWindow window(FirstLanguage(options), LayerSets::uninstallProgress,
        QT_TRANSLATE_NOOP("Wizard", "Uninstalling %1"));
    return UninstallSilently(options, window.Show(sink));
}

} // namespace Vorlan::FrontEnd
