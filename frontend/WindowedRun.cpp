#include "WindowedRun.h"

#include "InstallRun.h"
#include "MediatorRun.h"
#include "OwnFolder.h"
#include "base/ProductProfile.h"
#include "widgets/AlertBox.h"
#include "wizard/InstallWizard.h"
#include "wizard/Texts.h"
#include "wizard/UninstallWizard.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <stdexcept>

namespace Vorlan::FrontEnd
{
namespace
{

Outcome ShowFailure(const QString& error)
{
    AlertBox::error(nullptr, error, false);
    return {ExitCode::Failed, error};
}

} // namespace

QString FirstLanguage(const CommandLine& options)
{
    const QString system = QLocale(QLocale().uiLanguages().value(0)).name();
    const QString language = options.language.isEmpty() ? system : options.language;
    return ProductProfile::SupportedLocales().contains(language)
               ? language
               : QString(ProductProfile::defaultLocale);
}

Outcome InstallWithWindow(const CommandLine& options, const EventSink& sink)
{
    const auto translator = InstallTranslation(FirstLanguage(options));
    try
    {
        InstallWizard wizard(options, sink);
        if (!HasArchive()) // the engine has reported it in a box
        {
            return {ExitCode::Failed, MissingArchiveText()};
        }
        return wizard.Run();
    }
    catch (const std::exception& error)
    {
        qWarning("%s", error.what());
        return ShowFailure(WizardText("The setup is damaged. Download it again."));
    }
}

Outcome UninstallWithWindow(const CommandLine& options, const EventSink& sink)
{
    const auto translator = InstallTranslation(FirstLanguage(options));
    const QString folder = QCoreApplication::applicationDirPath();
    const OwnFolder own = ExamineOwnFolder(folder, options.Scope());
    return UninstallWizard(folder, own, options, sink).Run();
}

void ShowAnotherSetupRuns(const CommandLine& options)
{
    const auto translator = InstallTranslation(FirstLanguage(options));
    AlertBox::error(nullptr,
        QCoreApplication::translate("Vorlan::InstallerMediator",
            "A Setup or Uninstall window is currently running and needs to be closed before "
            "starting %1.")
            .arg(ProductTitle()),
        false);
}

} // namespace Vorlan::FrontEnd
