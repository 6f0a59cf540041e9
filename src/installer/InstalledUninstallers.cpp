#include "installer/InstallerMediator.h"

#include "installer/SilentUninstaller.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"

#include <QDebug>
#include <QFile>

namespace Vorlan
{

void InstallerMediator::RemovePreviousVersion()
{
    const QString& name = settings.previousFolderName;
    const QString uninstaller = SettingsManager::GetUninstallerPath(name);
    if (uninstaller.isEmpty() || !QFile::exists(uninstaller))
    {
        qDebug() << "Skipping " << uninstaller;
        return;
    }
    emit InstallationProgress(0.0, QString(), tr("Uninstalling a previous version"));
    RunUninstaller(uninstaller, SettingsManager::IsUninstallerUACNeeded(name), *waitClock);
}

void InstallerMediator::RemoveAdditionalModules()
{
    for (const QString& name : profile->additionalModules)
    {
        const QString uninstaller = SettingsManager::GetUninstallerPath(name);
        if (!uninstaller.isEmpty() && QFile::exists(uninstaller))
            RunUninstaller(uninstaller, SettingsManager::IsUninstallerUACNeeded(name), *waitClock);
    }
}

} // namespace Vorlan
