#include "UninstallRun.h"

#include "MachineAccess.h"
#include "MediatorRun.h"
#include "OwnFolder.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTranslator>

namespace Vorlan::FrontEnd
{

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
