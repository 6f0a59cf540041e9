#include "InstallRun.h"

#include "MediatorRun.h"

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
    InstallerMediator& mediator, const InstallationSettings& settings, const EventSink& sink)
{
    mediator.SetSettings(settings);
    mediator.OnLocaleChanged(settings.locale);
    return RunToTheEnd(mediator, &InstallerMediator::StartInstallation, sink);
}

} // namespace Vorlan::FrontEnd
