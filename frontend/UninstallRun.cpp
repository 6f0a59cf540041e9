#include "UninstallRun.h"

#include "Await.h"
#include "ElevatedRun.h"
#include "FolderRemoval.h"
#include "KeptFiles.h"
#include "MediatorRun.h"
#include "RemovalFolder.h"
#include "RemovalGuard.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{
namespace
{

// Why nothing may be deleted; empty if the folder can be removed with its content.
QString FullRemovalRefusal(const QString& folder)
{
    const QString objection = FindRemovalObjection(folder);
    if (!objection.isEmpty())
    {
        return QString("The folder %1 is %2: nothing was deleted. Without /REMOVEALL only the "
                       "program's own files are removed.")
            .arg(QDir::toNativeSeparators(folder), objection);
    }
    if (!RemovalFolder::CanRunScript())
    {
        return QString("The temporary folder %1 cannot be written: nothing was deleted. Without "
                       "/REMOVEALL it is not needed.")
            .arg(QDir::toNativeSeparators(QDir::tempPath()));
    }
    return {};
}

// The engine deletes these, not what is in sub-folders.
QStringList FilesAtTheTop(const QStringList& paths)
{
    QStringList files;
    for (const QString& path : paths)
    {
        if (!path.contains('/'))
            files += path;
    }
    return files;
}

QString KeepFilesAtTheTop(const QString& folder, const PlacedFiles& placed)
{
    const QStringList foreign = SortContent(folder, placed).foreign;
    return KeepFiles(folder, FilesAtTheTop(foreign), KeepingPlace::Inside);
}

// Windows keeps a folder that is the current one of a process.
void Leave(const QString& folder)
{
    QDir::setCurrent(QFileInfo(folder).path());
}

UninstallResult RemoveFiles(const QString& folder, const PlacedFiles& placed, bool isEverything)
{
    Leave(folder);
    FolderRemoval removal(folder, placed);
    removal.RemoveOwn();
    if (isEverything)
        removal.RemoveForeign();
    UninstallResult result{{}, removal.RemoveFolder()};
    removal.ScheduleRest();
    return result;
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

PlacedFiles FilesToRemove(const InstallerMediator& mediator, const QString& folder)
{
    const auto known = mediator.ListPlacedFiles();
    const auto listed = PlacedFiles::Read(folder);
    return listed ? listed->With(known) : PlacedFiles(PlacedFiles::State::Complete, known);
}

UninstallResult UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink)
{
    const QString refusal = options.removeAll ? FullRemovalRefusal(folder) : QString();
    if (!refusal.isEmpty())
        return {{ExitCode::Failed, refusal}, {}};
    ReturnKeptFiles(folder, KeepingPlace::Inside);
    if (!options.ignoreMutex) // else a setup may be running, which keeps files there
        ReturnKeptFiles(folder, KeepingPlace::Beside);
    const PlacedFiles placed = FilesToRemove(mediator, folder);
    const QString stuck = Await([&] { return KeepFilesAtTheTop(folder, placed); });
    if (!stuck.isEmpty())
    {
        const QString error = QCoreApplication::translate("Uninstaller",
            "%1 is not part of the program and cannot be moved out of the way: nothing was "
            "deleted. Close the program that uses it and try again.");
        return {{ExitCode::Failed, error.arg(QDir::toNativeSeparators(stuck))}, {}};
    }
    const bool hasList = PlacedFiles::IsIn(folder);
    if (!placed.Write(folder)) // so that an interrupted run can be repeated
    {
        ReturnKeptFiles(folder, KeepingPlace::Inside);
        return {{ExitCode::Failed, QString("The folder %1 cannot be written: nothing was deleted.")
                                       .arg(QDir::toNativeSeparators(folder))},
            {}};
    }
    mediator.OnDeleteUserSettings(options.deleteSettings);
    const Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartUninstall, sink);
    ReturnKeptFiles(folder, KeepingPlace::Inside);
    if (outcome.code == ExitCode::DependentProgramsExist && !hasList)
        PlacedFiles::RemoveFrom(folder);
    if (outcome.code != ExitCode::Done)
        return {outcome, {}};
    return Await([&] { return RemoveFiles(folder, placed, options.removeAll); });
}

std::optional<UninstallResult> UninstallElevated(CommandLine options, const EventSink& sink)
{
    options.uninstall = true;
    options.allUsers = true;
    const auto outcome = RunElevated(QCoreApplication::applicationFilePath(), options, sink);
    return outcome ? std::optional(UninstallResult{*outcome, outcome->files}) : std::nullopt;
}

UninstallResult RemoveCopy(const QString& folder, const PlacedFiles& placed)
{
    return Await([&] { return RemoveFiles(folder, placed, false); });
}

} // namespace Vorlan::FrontEnd
