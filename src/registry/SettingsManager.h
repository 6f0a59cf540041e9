#pragma once

#include "installer/Export.h"
#include "registry/RegistrationRecords.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <string>
#include <vector>

namespace Vorlan
{

class RegistrySettings;
struct InstallationSettings;
struct UserInfoSettings;

// The product's registry records. An object reads and writes the product's own key,
// <root>\Software\<organisation>\<application>, and the user key beside it,
// <root>\Software\<organisation>\User; the static operations write and remove what the shell and
// the list of installed programs know of the product.
//
// Nothing here throws or reports a registry failure: a write that fails is lost, a missing value
// reads as an empty text. An object belongs to one thread at a time. Installation folders are given
// with a trailing separator.
class INSTALLER_EXPORT SettingsManager
{
public:
    static const std::string installerNameKey;
    static const std::string uninstallString;
    static const std::string useUAC;
    // Published for front ends and the product; the engine does not use it.
    static const std::string AreAdditionalsInstalled;

    SettingsManager(
        const QString& application, const QString& organization, QSettings::Scope scope);
    ~SettingsManager();
    SettingsManager(const SettingsManager&) = delete;
    SettingsManager& operator=(const SettingsManager&) = delete;

    // Writes the installation's values into the product key. A stored "Browser" and "autoUpdate"
    // are never replaced.
    void SetSettings(const InstallationSettings& settings);
    // Stores a web user id that is not empty in the user key.
    void SetUserInfoSettings(const UserInfoSettings& userInfo);
    // Writes one more value of the product key, in the sub-key `group` where it is not empty.
    void WriteAdditionalData(const RegistryData& data);
    void DisableCodecs(const std::string& codecs);
    void DisablePlugins(const std::vector<std::string>& plugins);
    void SetKilledByInstaller(bool killed);

    bool StatisticsKeyExists() const;
    QString GetInstallLocation() const;
    QString GetInstalledVersion() const;
    QString GetInstallerBrowser() const;
    QString GetCurrentBrowser() const;
    QString GetLocale() const;
    QString GetArchitectBits() const;
    static QString GetAppBits();
    // The browser whose marker occurs in an installer's file name, empty when there is none.
    static QString GetBrowserFromFilename(const QString& fileName);
    QString GetWebUIDFromProductKey() const;
    QString GetWebUIDFromUserKey() const;
    // The user's id, or the product's where that is missing or "UNDEFINED".
    QString GetWebUID() const;

    // Removes what belongs to this installation; the user's choices stay.
    void RemoveInstallerSettings();
    // Removes every value and sub-key of the product key; the empty key stays.
    void RemoveAllSettings();

    static void AddAppPath(const QString& keyName, const QString& installDir,
        const ExecutableInfo& info, QSettings::Scope scope);
    static void RemoveAppPath(const QString& keyName, QSettings::Scope scope);
    static void AddProgId(const QString& prefix, const QString& executablePath,
        const AutoPlayAssociation& association);
    static void AddProgId(const QString& prefix, const QString& executablePath,
        const ExtensionAssociation& association);
    static void RemoveProgId(const QString& prefix, const AutoPlayAssociation& association);
    static void RemoveProgId(const QString& prefix, const ExtensionAssociation& association);
    static void AddAssociations(
        const QString& prefix, const ExtensionAssociation& association, QSettings::Scope scope);
    static void RemoveAssociations(const ExtensionAssociation& association, QSettings::Scope scope);
    static void AddAutoplayHandlers(const QString& prefix, const QString& installDir,
        const QString& provider, const AutoPlayAssociation& association, QSettings::Scope scope);
    static void RemoveAutoplayHandlers(
        const QString& prefix, const AutoPlayAssociation& association, QSettings::Scope scope);
    static void AddCustomProtocol(const QString& scheme, const QString& handlerProgram,
        const QString& installDir, QSettings::Scope scope);
    static void RemoveCustomProtocol(const QString& scheme, QSettings::Scope scope);
    static void AddToContextMenu(const QString& label, const QString& executablePath,
        const QStringList& extensions, QSettings::Scope scope);
    static void RemoveContextMenu(const QString& label, const QString& executablePath,
        const QStringList& extensions, QSettings::Scope scope);
    static void AddToAutoRun(const QString& name, const QString& executablePath,
        const QString& arguments, QSettings::Scope scope);
    static void RemoveFromAutoRun(
        const QString& name, const QString& executablePath, QSettings::Scope scope);

    static void AddUninstaller(const ProgramInfo& info, const QString& installDir,
        const QString& uninstallerFileName, const QString& iconFileName, QSettings::Scope scope);
    static void RemoveUninstaller(const QString& name, QSettings::Scope scope);
    // The uninstaller of an entry of the list of installed programs, without quotes.
    static QString GetUninstallerPath(const QString& name);
    static bool IsUninstallerUACNeeded(const QString& name);
    // The entry of this maker whose icon names the executable; empty when there is none.
    static QString GetProductNameByExecutableName(const QString& executableFileName);

private:
    bool Contains(const std::string& name) const;
    QString Read(const std::string& name) const;
    bool SetValue(const std::string& name, const QVariant& value);
    bool SetUserInfoValue(const std::string& name, const QVariant& value);
    void Remove(const std::string& name);
    void RemoveProductSettings();
    void RemoveSoftwareSettings();

    static QString RootName(QSettings::Scope scope);
    static void WriteProgId(const QString& progId, const QString& executablePath,
        const QStringList& arguments, const QString& icon, QSettings::Scope scope);
    static void RemoveProgIdKey(const QString& progId, QSettings::Scope scope);
    static QString GetExtensionIconPath(const QString& executablePath, const QString& extension);

    std::unique_ptr<RegistrySettings> productSettings;
    std::unique_ptr<RegistrySettings> userSettings;
};

} // namespace Vorlan
