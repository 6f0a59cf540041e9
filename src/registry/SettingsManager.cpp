#include "registry/SettingsManager.h"

#include "base/InstallationSettings.h"
#include "base/TriState.h"
#include "registry/BrowserTable.h"
#include "registry/RegistrySettings.h"

#include <QDateTime>

#include <algorithm>

namespace Vorlan
{

const std::string SettingsManager::installerNameKey = "InstallerName";
const std::string SettingsManager::uninstallString = "UninstallString";
const std::string SettingsManager::useUAC = "UseUAC";
const std::string SettingsManager::AreAdditionalsInstalled = "AreAdditionalsInstalled";

SettingsManager::SettingsManager(
    const QString& application, const QString& organization, QSettings::Scope scope)
    : productSettings(std::make_unique<RegistrySettings>(scope, organization, application)),
      userSettings(std::make_unique<RegistrySettings>(scope, organization, QStringLiteral("User")))
{
}

SettingsManager::~SettingsManager() = default;

void SettingsManager::SetSettings(const InstallationSettings& settings)
{
    SetValue("locale", settings.locale);
    if (settings.sendStatistics != TriState::notAsked)
        SetValue("sendStatistics", settings.sendStatistics == TriState::chosen);
    SetValue("DateTime", QDateTime::currentDateTime().toString("dd/MM/yyyy hh:mm:ss"));
    if (!settings.installerName.isEmpty())
        SetValue(installerNameKey, settings.installerName);
    const QString browser = settings.browser.isEmpty()
                                ? GetBrowserFromFilename(settings.installerName)
                                : settings.browser;
    if (!browser.isEmpty() && GetInstallerBrowser().isEmpty())
        SetValue("Browser", browser);
    if (!Contains("autoUpdate"))
        SetValue("autoUpdate", true);
    SetValue("Path", settings.installDir);
    SetValue("ArchitectBits", GetAppBits());
    if (!settings.vendorProductModel.isEmpty())
        SetValue("VendorProductModel", settings.vendorProductModel);
    SetValue("ProductId", settings.productId);
    SetValue("VersionByInstaller", settings.versionByInstaller);
    SetValue("ExePath", settings.GetFullPathToMainAppExe());
    SetValue("MainAppIpcId", settings.mainAppIpcId);
    SetValue("ParentProductId", settings.parentProductId);
    SetValue("PartnerName.OVERRIDE", settings.partnerNameOverride);
    for (auto value = settings.extraValues.begin(); value != settings.extraValues.end(); ++value)
        SetValue(value.key().toStdString(), value.value());
}

void SettingsManager::SetUserInfoSettings(const UserInfoSettings& userInfo)
{
    if (!userInfo.webUid.isEmpty())
        SetUserInfoValue("WEBUID", userInfo.webUid);
}

void SettingsManager::WriteAdditionalData(const RegistryData& data)
{
    const QString name = data.group.isEmpty() ? data.name : data.group + '/' + data.name;
    SetValue(name.toStdString(), data.value);
}

void SettingsManager::DisableCodecs(const std::string& codecs)
{
    SetValue("BrokenCodecs", QString::fromStdString(codecs));
}

void SettingsManager::DisablePlugins(const std::vector<std::string>& plugins)
{
    QStringList names;
    for (const std::string& plugin : plugins)
        names += QString::fromStdString(plugin);
    SetValue("BrokenPlugins", names.join(','));
}

void SettingsManager::SetKilledByInstaller(bool killed)
{
    SetValue("KilledDuringUpdateByInstaller", killed);
}

bool SettingsManager::StatisticsKeyExists() const
{
    return Contains("sendStatistics");
}

QString SettingsManager::GetInstallLocation() const
{
    return Read("Path");
}

QString SettingsManager::GetInstalledVersion() const
{
    return Read("Version");
}

QString SettingsManager::GetInstallerBrowser() const
{
    return Read("Browser");
}

QString SettingsManager::GetCurrentBrowser() const
{
    return Read("PreferredBrowser");
}

QString SettingsManager::GetLocale() const
{
    return Read("locale");
}

QString SettingsManager::GetArchitectBits() const
{
    return Read("ArchitectBits");
}

QString SettingsManager::GetAppBits()
{
    return QStringLiteral("x64");
}

QString SettingsManager::GetBrowserFromFilename(const QString& fileName)
{
    const auto browser = std::find_if(browserTable.begin(), browserTable.end(),
        [&fileName](const auto& entry) { return fileName.contains(entry.first); });
    return browser == browserTable.end() ? QString() : browser->second;
}

QString SettingsManager::GetWebUIDFromProductKey() const
{
    return Read("WEBUID");
}

QString SettingsManager::GetWebUIDFromUserKey() const
{
    return userSettings->value("WEBUID").toString();
}

QString SettingsManager::GetWebUID() const
{
    const QString ofUser = GetWebUIDFromUserKey();
    return ofUser.isEmpty() || ofUser == "UNDEFINED" ? GetWebUIDFromProductKey() : ofUser;
}

void SettingsManager::RemoveInstallerSettings()
{
    Remove("Path");
    Remove("DateTime");
    Remove("ArchitectBits");
    Remove(installerNameKey);
}

void SettingsManager::RemoveAllSettings()
{
    RemoveProductSettings();
    RemoveSoftwareSettings();
}

bool SettingsManager::Contains(const std::string& name) const
{
    return productSettings->contains(QString::fromStdString(name));
}

QString SettingsManager::Read(const std::string& name) const
{
    return productSettings->value(QString::fromStdString(name)).toString();
}

bool SettingsManager::SetValue(const std::string& name, const QVariant& value)
{
    productSettings->setValue(QString::fromStdString(name), value);
    return true;
}

bool SettingsManager::SetUserInfoValue(const std::string& name, const QVariant& value)
{
    userSettings->setValue(QString::fromStdString(name), value);
    return true;
}

void SettingsManager::Remove(const std::string& name)
{
    productSettings->remove(QString::fromStdString(name));
}

void SettingsManager::RemoveProductSettings()
{
    for (const QString& name : productSettings->childKeys())
        productSettings->remove(name);
}

void SettingsManager::RemoveSoftwareSettings()
{
    for (const QString& group : productSettings->childGroups())
    {
        productSettings->beginGroup(group);
        productSettings->remove(QString());
        productSettings->endGroup();
    }
}

} // namespace Vorlan
