#include "InstallRun.h"

#include "MediatorRun.h"
#include "RemovalMark.h"

#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{

QString ArchivePath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(ProductProfile::archiveFileName);
}

bool HasArchive()
{
    return QFileInfo(ArchivePath()).isFile();
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
    mediator.SetSettings(settings);
    mediator.OnLocaleChanged(settings.locale);
    return RunToTheEnd(mediator, &InstallerMediator::StartInstallation, sink);
}

} // namespace Vorlan::FrontEnd
