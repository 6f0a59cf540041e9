#include "installer/InstallerMediator.h"

#include "DefaultAppWinInstaller/DefaultAppWinInstaller.h"
#include "autolaunch/StartupRegistration.h"
#include "base/Localization.h"
#include "base/ProductProfile.h"
#include "base/TriState.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDate>

namespace Vorlan
{

namespace
{

constexpr char convertLabel[] = "Convert to";
constexpr char openLabel[] = "Open with";

// Year, month and day as numbers without leading zeros, with nothing between them.
QString DateText(const QDate& date)
{
    return QString::number(date.year()) + QString::number(date.month()) +
           QString::number(date.day());
}

AutoLaunchApp CompanionProgram(const RegistrationProfile& profile, const QString& folder)
{
    return {profile.autoLaunchAppId.toStdString(),
        (folder + profile.autoLaunchExecutable).toStdString(),
        profile.autoLaunchParameters.toStdString()};
}

} // namespace

void InstallerMediator::AddRegistryInfo()
{
    const QString& name = settings.productFolderName;
    const QString& folder = settings.installDir;
    const QSettings::Scope scope = settings.scope;

    settingsManager->SetSettings(settings);
    for (const ExecutableInfo& info : profile->appPaths)
        SettingsManager::AddAppPath(name, folder, info, scope);
    for (const AutoPlayAssociation& association : profile->autoPlayAssociations)
    {
        SettingsManager::AddProgId(name, folder + association.executable, association);
        SettingsManager::AddAutoplayHandlers(
            name, folder, ProductProfile::companyName, association, scope);
    }
    for (const ExtensionAssociation& association : profile->extensionAssociations)
    {
        SettingsManager::AddProgId(name, folder + association.executable, association);
        SettingsManager::AddAssociations(name, association, QSettings::UserScope);
    }
    SettingsManager::AddUninstaller(
        {name, ProductProfile::versionText, DateText(QDate::currentDate()),
            ProductProfile::companyName, settings.locale,
            static_cast<qint64>(settings.requiredSpace)},
        folder, ProductProfile::uninstallerFileName, profile->mainExecutable, scope);
    if (settings.autoLaunch == TriState::chosen)
        AddAppToStartup(scope, CompanionProgram(*profile, folder), ThisProduct());
    AddContextMenu(settings.contextMenuConvert, convertLabel);
    AddContextMenu(settings.contextMenuOpenWith, openLabel);
    for (const RegistryData& data : profile->additionalValues)
        settingsManager->WriteAdditionalData(data);
    if (!profile->protocolScheme.isEmpty())
        SettingsManager::AddCustomProtocol(
            profile->protocolScheme, profile->protocolHandler, folder, scope);
    settingsManager->SetUserInfoSettings(settings.userInfo);
}

void InstallerMediator::AddContextMenu(int choice, const char* label) const
{
    if (choice == TriState::chosen)
        SettingsManager::AddToContextMenu(TranslateForLocale(settings.systemLocale, label),
            settings.installDir + profile->contextMenuExecutable, profile->contextMenuExtensions,
            settings.scope);
}

void InstallerMediator::RemoveRegistryInfo()
{
    const QString& name = settings.previousFolderName;
    const QSettings::Scope scope = settings.scope;
    if (deleteUserSettings || settings.removeAllOnUninstall)
        settingsManager->RemoveAllSettings();
    else
        settingsManager->RemoveInstallerSettings();

    const QString folder = QCoreApplication::applicationDirPath().replace('/', '\\') + '\\';
    SettingsManager::RemoveAppPath(name, scope);
    for (const AutoPlayAssociation& association : profile->autoPlayAssociations)
    {
        SettingsManager::RemoveProgId(name, association);
        SettingsManager::RemoveAutoplayHandlers(name, association, scope);
    }
    for (const ExtensionAssociation& association : profile->extensionAssociations)
    {
        SettingsManager::RemoveProgId(name, association);
        SettingsManager::RemoveAssociations(association, scope);
    }
    if (!profile->contextMenuExecutable.isEmpty())
    {
        for (const char* label : {convertLabel, openLabel})
            SettingsManager::RemoveContextMenu(TranslateForLocale(settings.systemLocale, label),
                folder + profile->contextMenuExecutable, profile->contextMenuExtensions, scope);
    }
    SettingsManager::RemoveUninstaller(name, scope);
    if (!profile->autoLaunchAppId.isEmpty())
        RemoveAppFromStartup(scope, CompanionProgram(*profile, folder), ThisProduct());

    // Older versions registered the scheme with the major version behind it.
    SettingsManager::RemoveCustomProtocol(profile->protocolScheme, scope);
    SettingsManager::RemoveCustomProtocol(
        ProductProfile::applicationId + ProductProfile::versionMajor, scope);
}

void InstallerMediator::SetDefaultApps()
{
    if (settings.defaultApps != TriState::chosen)
        return;
    const InstallationSettings current = settings;
    for (const ExtensionAssociation& association : profile->extensionAssociations)
        SetDefaultApplication(static_cast<AppType>(profile->defaultAppType), association.extensions,
            current.productFolderName, current.installDir);
}

} // namespace Vorlan
