#include "WindowedRun.h"

#include "InstallRun.h"
#include "MachineAccess.h"
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

// The language before a mediator proposes one: that of the options, or the system's.
QString FirstLanguage(const CommandLine& options)
{
    const QString system = QLocale(QLocale().uiLanguages().value(0)).name();
    const QString language = options.language.isEmpty() ? system : options.language;
    return ProductProfile::SupportedLocales().contains(language)
               ? language
               : QString(ProductProfile::defaultLocale);
}

Outcome ShowFailure(const QString& error)
{
    AlertBox::error(nullptr, error, false);
    return {ExitCode::Failed, error};
}

} // namespace

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
    if (own.scope == QSettings::SystemScope && !CanChangeMachine())
    {
        return RelaunchElevated(QCoreApplication::arguments().mid(1))
                   ? Outcome{}
                   : ShowFailure(MachineRightsMissing());
    }
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
