#include "installer/InstallerMediator.h"

#include "registry/SettingsManager.h"

namespace Vorlan
{

void InstallerMediator::AddRegistryInfo()
{
    settingsManager->SetSettings(settings);
    for (const RegistryData& data : profile.additionalValues)
        settingsManager->WriteAdditionalData(data);
    settingsManager->SetUserInfoSettings(settings.userInfo);
}

void InstallerMediator::RemoveRegistryInfo() {}

void InstallerMediator::SetDefaultApps() {}

} // namespace Vorlan
