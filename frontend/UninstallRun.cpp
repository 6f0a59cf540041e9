#include "UninstallRun.h"

#include "MediatorRun.h"
#include "OwnFolder.h"

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

} // namespace

std::unique_ptr<InstallerMediator> MakeUninstaller(
    QSettings::Scope scope, const CommandLine& options, bool isUnattended)
{
    const QString programName = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    auto mediator = std::make_unique<InstallerMediator>(
        InstallerMediator::Initializer{programName, false, isUnattended, scope, false});
    InstallationSettings settings = mediator->GetSettings();
    settings.removeAllOnUninstall = options.removeAll;
    settings.locale = options.language.isEmpty() ? settings.locale : options.language;
    mediator->SetSettings(settings);
    return mediator;
}

Outcome UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink)
{
    if (options.removeAll && !CanUseTemporaryFolder())
    {
        return {ExitCode::Failed,
            QString("The temporary folder %1 cannot be written: nothing was deleted. Without "
                    "/REMOVEALL it is not needed.")
                .arg(QDir::toNativeSeparators(QDir::tempPath()))};
    }
    mediator.OnDeleteUserSettings(options.deleteSettings);
    const RemovalMark mark(folder);
    Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartUninstall, sink);
    if (outcome.code != ExitCode::Failed)
    {
        mark.Finish();
    }
    return outcome;
}

} // namespace Vorlan::FrontEnd
