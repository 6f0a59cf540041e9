#include "SilentRun.h"

#include "ElevatedRun.h"
#include "InstallOptions.h"
#include "InstallRun.h"
#include "MachineAccess.h"
#include "MediatorRun.h"
#include "Obstacles.h"
#include "OwnFolder.h"
#include "UninstallRun.h"
#include "WebUserId.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <stdexcept>

namespace Vorlan::FrontEnd
{
namespace
{

Outcome Failure(const QString& error)
{
    return {ExitCode::Failed, error};
}

// A run with a window has the rights confirmed; one without does not ask.
Outcome RunWithoutRights(CommandLine options, const QString& refusal, const EventSink& sink)
{
    options.allUsers = true; // found here, perhaps not by another user
    options.currentUser = false;
    const auto outcome = options.passive
                             ? RunElevated(QCoreApplication::applicationFilePath(), options, sink)
                             : std::nullopt;
    return outcome.value_or(Failure(refusal));
}

// The engine reports a missing archive in a modal box, which an unattended run must not open.
Outcome CheckArchive()
{
    return HasArchive() ? Outcome() : Failure(MissingArchiveText());
}

// An unusable folder and a volume without enough space have different exit codes.
Outcome CheckFolder(const InstallationSettings& settings)
{
    QString error;
    if (!InstallationSettings::IsValidPath(settings.installDir, 0, error))
    {
        return Failure(
            QString("%1: %2. Choose another with /D=<folder>.").arg(error, settings.installDir));
    }
    const auto space = static_cast<long long>(settings.requiredSpace);
    if (!InstallationSettings::IsValidPath(settings.installDir, space, error))
    {
        const QString line = QString("%1: %2 needs %3 bytes. Free some, or choose another folder "
                                     "with /D=<folder>.")
                                 .arg(error, settings.installDir)
                                 .arg(space);
        return {ExitCode::DiskFull, line};
    }
    return {};
}

// Replacing a newer version is a question that an unattended run cannot ask.
Outcome CheckVersion(const Installation* installed, const CommandLine& options)
{
    if (ChangeOf(installed) != Change::Downgrade || options.downgrade)
        return {};
    return {ExitCode::NewerVersionInstalled,
        QString("The newer version %1 is installed in %2: nothing was changed. Give /DOWNGRADE to "
                "replace it.")
            .arg(installed->version, QDir::toNativeSeparators(installed->folder))};
}

Outcome InstallWithOptions(InstallerMediator& mediator, const FoundInstallations& found,
    const CommandLine& options, const EventSink& sink)
{
    mediator.NotifyExtractorOnReady();
    InstallationSettings settings =
        ApplyOptions(ProposeSettings(mediator.GetSettings(), found), options);
    const auto translator = InstallTranslation(settings.locale);
    Outcome refusal = CheckFolder(settings);
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    refusal = RemoveObstacles(RulesFor(settings), options.closeApps, SystemProcesses());
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    const QString problem = SaveChoices(settings, options);
    if (!problem.isEmpty())
    {
        return Failure(problem);
    }
    settings.userInfo.webUid = FindWebUid(mediator, options);
    const InstallResult result = InstallWith(mediator, settings, sink);
    Outcome outcome = result.outcome;
    outcome.files = result.movedFiles;
    return outcome;
}

} // namespace

Outcome InstallSilently(const CommandLine& options, const EventSink& sink)
{
    Outcome refusal = CheckArchive();
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    const FoundInstallations found = FindInstallations();
    const QSettings::Scope scope = ChooseScope(found, options);
    refusal = CheckVersion(found.Of(scope), options);
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    if (scope == QSettings::SystemScope && !CanChangeMachine())
    {
        return RunWithoutRights(options, MachineRightsMissing(), sink);
    }
    try
    {
        return InstallWithOptions(*MakeInstaller(scope, true), found, options, sink);
    }
    catch (const std::exception& error)
    {
        return Failure(QString("The setup cannot start: %1. Download it again.").arg(error.what()));
    }
}

Outcome UninstallSilently(const CommandLine& options, const EventSink& sink)
{
    const QString folder = QCoreApplication::applicationDirPath();
    const OwnFolder own = ExamineOwnFolder(folder, options.Scope());
    if (!own.refusal.isEmpty())
    {
        return Failure(own.refusal);
    }
    if (own.scope == QSettings::SystemScope && !CanChangeMachine())
    {
        return RunWithoutRights(options, UninstallRightsMissing(), sink);
    }
    const auto mediator = MakeUninstaller(own.scope, options, true);
    const auto translator = InstallTranslation(mediator->GetSettings().locale);
    Outcome refusal =
        RemoveObstacles(UninstallationRules(folder), options.closeApps, SystemProcesses());
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    const UninstallResult result = UninstallWith(*mediator, folder, options, sink);
    Outcome outcome = result.outcome;
    outcome.files = result.staying;
    return outcome;
}

} // namespace Vorlan::FrontEnd
