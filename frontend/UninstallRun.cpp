#include "UninstallRun.h"

#include "ElevatedRun.h"
#include "MediatorRun.h"
#include "RemovalGuard.h"
#include "RemovalMark.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace Vorlan::FrontEnd
{
namespace
{

// The script that removes the folder after the run is copied there.
bool CanUseTemporaryFolder()
{
    return QTemporaryFile().open();
}

// Why nothing may be deleted; empty if the folder can be removed with its content.
QString FullRemovalRefusal(const QString& folder)
{
    const QString objection = FindRemovalObjection(folder);
    if (!objection.isEmpty())
    {
        return QString("The folder %1 is %2: nothing was deleted. Without /REMOVEALL its "
                       "sub-folders are left.")
            .arg(QDir::toNativeSeparators(folder), objection);
    }
    if (!CanUseTemporaryFolder())
    {
        return QString("The temporary folder %1 cannot be written: nothing was deleted. Without "
                       "/REMOVEALL it is not needed.")
            .arg(QDir::toNativeSeparators(QDir::tempPath()));
    }
    return {};
}

} // namespace

std::unique_ptr<InstallerMediator> MakeUninstaller(
    QSettings::Scope scope, const CommandLine& options, bool isUnattended)
{
    const QString programName = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    auto mediator = std::make_unique<InstallerMediator>(
        InstallerMediator::Initializer{programName, false, isUnattended, scope, false});
    InstallationSettings settings = mediator->GetSettings();
    // The name of the records, whatever the folder is called.
    settings.previousFolderName = settings.productFolderName;
    settings.removeAllOnUninstall = options.removeAll;
    settings.locale = options.language.isEmpty() ? settings.locale : options.language;
    mediator->SetSettings(settings);
    return mediator;
}

Outcome UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink)
{
    const bool isFullRemoval = options.removeAll && options.silent;
    const QString refusal = options.removeAll ? FullRemovalRefusal(folder) : QString();
    if (!refusal.isEmpty())
    {
        return {ExitCode::Failed, refusal};
    }
    const RemovalMark mark(folder, isFullRemoval);
    if (isFullRemoval && !mark.IsComplete())
    {
        return {ExitCode::Failed,
            QString("The folder %1 cannot be written: nothing was deleted. Without /REMOVEALL that "
                    "is not needed.")
                .arg(QDir::toNativeSeparators(folder))};
    }
    mediator.OnDeleteUserSettings(options.deleteSettings);
    Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartUninstall, sink);
    // The script that removes the folder needs the mark.
    const bool isMarkNeeded = isFullRemoval && outcome.code == ExitCode::Done;
    if (outcome.code != ExitCode::Failed && !isMarkNeeded)
    {
        mark.Finish();
    }
    return outcome;
}

std::optional<Outcome> UninstallElevated(CommandLine options, const EventSink& sink)
{
    options.uninstall = true;
    options.allUsers = true;
    return RunElevated(QCoreApplication::applicationFilePath(), options, sink);
}

} // namespace Vorlan::FrontEnd
