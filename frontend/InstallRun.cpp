#include "InstallRun.h"

#include "ElevatedRun.h"
#include "InstallOptions.h"
#include "MediatorRun.h"
#include "RemovalMark.h"
#include "UninstallEntryExtras.h"

#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{
namespace
{

// The engine runs the uninstaller of the entry that is named like the registered folder. Another
// name than the product's is the name of another program's entry.
void LeaveForeignUninstaller(InstallationSettings& settings)
{
    QString& name = settings.previousFolderName;
    if (name.compare(ProductProfile::productFullName, Qt::CaseInsensitive) != 0)
    {
        qWarning() << "The previous version is left, because the name of its folder is not the "
                      "product's:"
                   << name;
        name.clear();
    }
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

Outcome InstallWith(
    InstallerMediator& mediator, InstallationSettings settings, const EventSink& sink)
{
    if (!CancelRemovals(settings.installDir))
    {
        return {ExitCode::Failed,
            QCoreApplication::translate(
                "Wizard", "The folder %1 is still being removed. Wait a moment and try again.")
                .arg(QDir::toNativeSeparators(QDir::cleanPath(settings.installDir)))};
    }
    LeaveForeignUninstaller(settings);
    mediator.SetSettings(settings);
    mediator.OnLocaleChanged(settings.locale);
    Outcome outcome = RunToTheEnd(mediator, &InstallerMediator::StartInstallation, sink);
    if (outcome.code == ExitCode::Done)
    {
        UninstallEntryExtras::Write(settings.scope, settings.installDir);
    }
    return outcome;
}

std::optional<Outcome> InstallElevated(InstallerMediator& mediator,
    const InstallationSettings& settings, const CommandLine& options, const EventSink& sink)
{
    mediator.SetSettings(settings);
    CommandLine chosen = OptionsFor(settings, options);
    chosen.saveFile.clear(); // this process has written it
    return RunElevated(QCoreApplication::applicationFilePath(), chosen, sink);
}

} // namespace Vorlan::FrontEnd
