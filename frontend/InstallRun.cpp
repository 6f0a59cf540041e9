#include "InstallRun.h"

#include "Await.h"
#include "ElevatedRun.h"
#include "FolderUpdate.h"
#include "FoundInstallations.h"
#include "InstallOptions.h"
#include "MediatorRun.h"
#include "RemovalGuard.h"
#include "UninstallEntryExtras.h"

#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{
namespace
{

// The engine runs the uninstaller of the entry that is named like the registered folder. Another
// name than the product's is the name of another program's entry, and an installation for this user
// alone leaves that of all users.
void ChooseFormerVersion(InstallationSettings& settings)
{
    QString& name = settings.previousFolderName;
    if (name.compare(ProductProfile::productFullName, Qt::CaseInsensitive) != 0)
    {
        qWarning() << "The previous version is left, because the name of its folder is not the "
                      "product's:"
                   << name;
        name.clear();
        return;
    }
    const FoundInstallations found = FindInstallations();
    if (settings.scope == QSettings::UserScope && !found.ofUser && found.ofAllUsers)
    {
        qWarning() << "The installation for all users is left";
        name.clear();
    }
}

// Where the uninstaller is that the engine will run; empty if there is none, or if the folder may
// not be the product's: nothing is moved or deleted there then.
QString FormerFolder(const InstallationSettings& settings)
{
    const QString uninstaller = SettingsManager::GetUninstallerPath(settings.previousFolderName);
    const QDir folder = QFileInfo(uninstaller).absoluteDir();
    const bool isProducts =
        PlacedFiles::IsIn(folder.path()) ||
        folder.dirName().compare(settings.productFolderName, Qt::CaseInsensitive) == 0;
    return QFileInfo(uninstaller).isFile() && isProducts &&
                   FindRemovalObjection(folder.path()).isEmpty()
               ? folder.path()
               : QString();
}

Outcome FileInTheWay(const QString& path)
{
    return {ExitCode::Failed,
        QCoreApplication::translate("Wizard",
            "%1 is not part of the program and cannot be moved out of the way: nothing was "
            "changed. Close the program that uses it and try again.")
            .arg(QDir::toNativeSeparators(path))};
}

} // namespace

QString ArchivePath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(ProductProfile::archiveFileName);
}

bool HasArchive()
{
    return QFileInfo(ArchivePath()).isFile();
}

QString MissingArchiveText()
{
    return QString("The archive %1 is missing: put it beside the setup program.")
        .arg(QDir::toNativeSeparators(ArchivePath()));
}

std::unique_ptr<InstallerMediator> MakeInstaller(QSettings::Scope scope, bool isUnattended)
{
    const QString programName = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    return std::make_unique<InstallerMediator>(
        InstallerMediator::Initializer{programName, true, isUnattended, scope, true});
}

ObstacleRules RulesFor(InstallationSettings settings)
{
    ChooseFormerVersion(settings);
    return InstallationRules(settings.installDir, FormerFolder(settings));
}

InstallResult InstallWith(
    InstallerMediator& mediator, InstallationSettings settings, const EventSink& sink)
{
    ChooseFormerVersion(settings);
    mediator.SetSettings(settings);
    mediator.OnLocaleChanged(settings.locale);
    FolderUpdate update(settings.installDir, FormerFolder(settings), mediator.ListPlacedFiles());
    const QString stuck = Await([&update] { return update.Begin(); });
    if (!stuck.isEmpty())
        return {FileInTheWay(stuck), Await([&update] { return update.End(); })};
    const auto watch = [&](const RunEvent& event)
    {
        const auto* stage = std::get_if<Events::ProcessStarted>(&event);
        if (stage != nullptr && stage->stage == "EXTRACT_FILES")
            update.BeginPlacing();
        sink(event);
    };
    const Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartInstallation, watch);
    if (outcome.code == ExitCode::Done)
    {
        Await([&update] { update.Complete(); });
        UninstallEntryExtras::Write(settings.scope, settings.installDir);
    }
    return {outcome, Await([&update] { return update.End(); })};
}

std::optional<InstallResult> InstallElevated(InstallerMediator& mediator,
    const InstallationSettings& settings, const CommandLine& options, const EventSink& sink)
{
    mediator.SetSettings(settings);
    CommandLine chosen = OptionsFor(settings, options);
    chosen.saveFile.clear(); // this process has written it
    chosen.downgrade = true; // and has asked about that
    const auto outcome = RunElevated(QCoreApplication::applicationFilePath(), chosen, sink);
    return outcome ? std::optional(InstallResult{*outcome, outcome->files}) : std::nullopt;
}

} // namespace Vorlan::FrontEnd
