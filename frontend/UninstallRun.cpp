#include "UninstallRun.h"

#include "MachineAccess.h"
#include "MediatorRun.h"
#include "OwnFolder.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTranslator>

namespace Vorlan::FrontEnd
{
namespace
{

// The script that removes the folder at last is copied there.
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
    const Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartUninstall, sink);
    if (outcome.code != ExitCode::Failed)
    {
        mark.Finish();
    }
    return outcome;
}

Outcome UninstallSilently(const CommandLine& options, const EventSink& sink)
{
    const QString folder = QCoreApplication::applicationDirPath();
    const OwnFolder own = ExamineOwnFolder(folder, options.Scope());
    if (!own.refusal.isEmpty())
    {
        return {ExitCode::Failed, own.refusal};
    }
    if (own.scope == QSettings::SystemScope && !CanChangeMachine())
    {
        return {ExitCode::Failed, MachineRightsMissing()};
    }
    const auto mediator = MakeUninstaller(own.scope, options, true);
    const auto translator = InstallTranslation(mediator->GetSettings().locale);
    return UninstallWith(*mediator, folder, options, sink);
}

} // namespace Vorlan::FrontEnd
