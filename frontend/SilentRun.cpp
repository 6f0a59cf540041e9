#include "SilentRun.h"

#include "InstallOptions.h"
#include "MachineAccess.h"
#include "MediatorRun.h"
#include "WebUserId.h"

#include "installer/InstallerMediator.h"

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

// The engine would tell of a missing archive in a box that waits for a person.
Outcome CheckArchive()
{
    if (HasArchive())
    {
        return {};
    }
    return Failure(QString("The archive %1 is missing: put it beside the setup program.")
                       .arg(QDir::toNativeSeparators(ArchivePath())));
}

// A folder that cannot be used at all, and a volume without enough room, end differently.
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

Outcome InstallWith(InstallerMediator& mediator, const CommandLine& options, const EventSink& sink)
{
    InstallationSettings settings = ApplyOptions(mediator.GetSettings(), options);
    const auto translator = InstallTranslation(settings.locale);
    const Outcome refusal = CheckFolder(settings);
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    settings.userInfo.webUid = FindWebUid(mediator, options);
    mediator.SetSettings(settings);
    mediator.OnLocaleChanged(settings.locale);
    return RunToTheEnd(mediator, &InstallerMediator::StartInstallation, sink);
}

} // namespace

Outcome InstallSilently(const CommandLine& options, const EventSink& sink)
{
    const Outcome refusal = CheckArchive();
    if (refusal.code != ExitCode::Done)
    {
        return refusal;
    }
    if (options.allUsers && !CanChangeMachine())
    {
        return Failure(MachineRightsMissing());
    }
    try
    {
        return InstallWith(*MakeInstaller(options.Scope(), true), options, sink);
    }
    catch (const std::exception& error)
    {
        return Failure(QString("The setup cannot start: %1. Download it again.").arg(error.what()));
    }
}

} // namespace Vorlan::FrontEnd
