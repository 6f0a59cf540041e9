#include "installer/InstallerMediator.h"

#include "installer/DelayedDelete.h"
#include "installer/SilentUninstaller.h"
#include "platform/ApplicationRegistry.h"
#include "platform/Links.h"
#include "platform/System.h"
#include "registry/RegistrationProfile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <windows.h>

namespace Vorlan
{

namespace
{

constexpr int delayedDeleteSeconds = 3;

using Applications = std::vector<App::IApplicationRegistry::Info>;

Applications DependentApplications(const QString& productId)
{
    const std::shared_ptr<App::IApplicationRegistry> registry =
        App::CreateApplicationRegistry(App::ParsingOptions());
    return App::getAllChildApplications(registry, productId.toStdString());
}

QString DisplayName(const App::IApplicationRegistry::Info& application, const QString& locale)
{
    const auto reader = App::createExternalConfigReader(application, locale.toStdString());
    return reader ? QString::fromStdString(reader->GetDisplayName())
                  : QString::fromStdString(application.name).remove(".exe");
}

} // namespace

void InstallerMediator::StartUninstall()
{
    StartRun(&InstallerMediator::Uninstall);
}

void InstallerMediator::Uninstall()
{
    try
    {
        RunUninstallation();
    }
    catch (const std::exception& error)
    {
        qWarning() << "Error " << error.what() << " in InstallerMediator::Uninstall()";
        ReportFailure();
    }
    catch (...)
    {
        qWarning() << "Error unknown error in InstallerMediator::Uninstall()";
        ReportFailure();
    }
}

void InstallerMediator::RunUninstallation()
{
    if (RefuseForDependentApplications())
        return;
    const bool isFullRemoval = settings.removeAllOnUninstall && unattended;

    TerminateApps();
    unsigned long long totalSize = 0;
    const QFileInfoList files = GetFilesList(totalSize);
    RemoveFiles(files, totalSize);
    RemoveRegistryInfo();
    RemoveShortcuts();
    if (settings.removeAllOnUninstall || !unattended)
        RemoveAdditionalModules();
    if (deleteUserSettings)
        RemoveLogs();
    if (profile->afterUninstall)
    {
        qInfo() << "Performing after uninstall action...";
        profile->afterUninstall(settings);
    }
    emit InstallationFinished();
    state = InstallationState::Finished;
    if (isFullRemoval)
        DelayedDeleteDir(delayedDeleteSeconds, QCoreApplication::applicationDirPath());
}

bool InstallerMediator::RefuseForDependentApplications()
{
    const Applications applications = DependentApplications(settings.productId);
    if (applications.empty())
        return false;
    QString text =
        tr("To uninstall %1, first uninstall these programs:").arg(settings.productDisplayName) +
        '\n';
    for (const App::IApplicationRegistry::Info& application : applications)
        text += "\n\t" + DisplayName(application, settings.locale);
    emit InstallationError(text, static_cast<int>(state.load()));
    state = InstallationState::NotStarted;
    return true;
}

QFileInfoList InstallerMediator::GetFilesList(unsigned long long& totalSize) const
{
    QFileInfoList files;
    totalSize = 0;
    QDirIterator entry(QCoreApplication::applicationDirPath());
    while (entry.hasNext())
    {
        entry.next();
        files += entry.fileInfo();
        totalSize += static_cast<unsigned long long>(entry.fileInfo().size());
    }
    return files;
}

void InstallerMediator::RemoveFiles(const QFileInfoList& files, unsigned long long totalSize)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    unsigned long long removedSize = 0;
    for (const QFileInfo& file : files)
    {
        removedSize += static_cast<unsigned long long>(file.size());
        if (file.fileName() == silentUninstallScript)
            continue;
        QFile::remove(file.filePath()); // folders stay, and so does what is in use
        const double position =
            totalSize == 0 ? 1.0
                           : static_cast<double>(removedSize) / static_cast<double>(totalSize);
        emit InstallationProgress(position, folder.relativeFilePath(file.filePath()));
    }
}

void InstallerMediator::RemoveLogs()
{
    const QString folder = GetLocationLogs();
    if (!folder.isEmpty() && QDir(folder).exists() && !Platform::RemoveFolder(folder))
        qInfo() << "Failed to remove logs " << folder << ", error=" << GetLastError();
}

QString InstallerMediator::GetLocationLogs() const
{
    return Platform::LogFolder();
}

void InstallerMediator::CreateInstallerMessageScript() const
{
    const QString name = GetProductName();
    const QString message = tr("A Setup or Uninstall window is currently running and needs to be "
                               "closed before starting %1.")
                                .arg(name);
    const QString script =
        "MsgBox \"" + message + "\", vbCritical+vbOKOnly+vbSystemModal, \"" + name + '"';

    const QString path = settings.installDir + installerMessageScript;
    Platform::RemoveFileLink(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    for (const QChar unit : script)
    {
        file.putChar(static_cast<char>(unit.cell()));
        file.putChar(static_cast<char>(unit.row()));
    }
}

} // namespace Vorlan
