#pragma once

#include "base/Export.h"
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

/// The product's registry records. An object reads and writes the product's own key,
/// `<root>\Software\<organisation>\<application>`, and the user key beside it,
/// `<root>\Software\<organisation>\User`; the static operations write and remove what the shell and
/// the list of installed programs hold of a product. The root is HKEY_CURRENT_USER for
/// QSettings::UserScope and HKEY_LOCAL_MACHINE for QSettings::SystemScope, which needs the rights.
///
/// Nothing here throws or reports a registry failure: a write that fails is lost, a missing value
/// reads as an empty text. An object belongs to one thread at a time. Installation folders are
/// given with a trailing separator; executable paths are whole; prefixes and key names are the
/// product's full name. A removal undoes the addition with the same arguments; what is not there is
/// no error.
class INSTALLER_EXPORT SettingsManager
{
public:
    /// Names of values: the installer's file name in the product key, and two of an entry of the
    /// list of installed programs.
    static const std::string installerNameKey;
    static const std::string uninstallString; ///< see #installerNameKey
    static const std::string useUAC;          ///< see #installerNameKey
    /// Published for front ends and the product; the engine does not use it.
    static const std::string AreAdditionalsInstalled;

    /// Touches nothing yet: the keys appear in the registry when they are first read or written.
    SettingsManager(
        const QString& application, const QString& organization, QSettings::Scope scope);
    ~SettingsManager();
    SettingsManager(const SettingsManager&) = delete;
    SettingsManager& operator=(const SettingsManager&) = delete;

    /// Writes the installation's values into the product key. A stored "Browser" and "autoUpdate"
    /// are never replaced.
    void SetSettings(const InstallationSettings& settings);
    /// Stores a web user id that is not empty in the user key.
    void SetUserInfoSettings(const UserInfoSettings& userInfo);
    /// Writes one more value of the product key, in the sub-key `group` where it is not empty.
    void WriteAdditionalData(const RegistryData& data);
    /// Stores the text of the codec check, "implementation:codec" pairs, as "BrokenCodecs".
    void DisableCodecs(const std::string& codecs);
    /// Stores the names with commas between them, as "BrokenPlugins".
    void DisablePlugins(const std::vector<std::string>& plugins);
    /// Stores whether the product was ended for an update, as "KilledDuringUpdateByInstaller"; the
    /// product reads it at its next start.
    void SetKilledByInstaller(bool killed);

    /// Whether the user was asked about statistics before.
    bool StatisticsKeyExists() const;
    QString GetInstallLocation() const;  ///< "Path": the folder with a trailing separator
    QString GetInstalledVersion() const; ///< "Version", which the product itself writes: "24-5-1"
    QString GetInstallerBrowser() const; ///< "Browser": the tag of the first installer
    QString GetCurrentBrowser() const;   ///< "PreferredBrowser", which the product itself writes
    QString GetLocale() const;           ///< "locale", for example "de_DE"
    QString GetArchitectBits() const;    ///< "ArchitectBits" of what is installed
    static QString GetAppBits();         ///< "ArchitectBits" of this engine: "x64"
    /// The browser whose marker occurs in an installer's file name, empty when there is none.
    static QString GetBrowserFromFilename(const QString& fileName);
    QString GetWebUIDFromProductKey() const; ///< "WEBUID" of the product key, whatever it holds
    QString GetWebUIDFromUserKey() const;    ///< "WEBUID" of the user key, whatever it holds
    /// The user's id, or the product's where that is missing or "UNDEFINED".
    QString GetWebUID() const;

    /// Removes what belongs to this installation; the user's choices stay.
    void RemoveInstallerSettings();
    /// Removes every value and sub-key of the product key; the empty key stays.
    void RemoveAllSettings();

    /// Lets Windows find a program by its file name.
    static void AddAppPath(const QString& keyName, const QString& installDir,
        const ExecutableInfo& info, QSettings::Scope scope);
    /// Removes all programs of the key.
    static void RemoveAppPath(const QString& keyName, QSettings::Scope scope);
    /// Writes the ProgID "<prefix>.<name>" with icon and open command. ProgIDs are always those of
    /// the current user.
    static void AddProgId(const QString& prefix, const QString& executablePath,
        const AutoPlayAssociation& association);
    /// Writes a ProgID "<prefix>.<name><extension>" for each extension; its icon is
    /// "resources/extIcons/<extension>.ico" beside the program.
    static void AddProgId(const QString& prefix, const QString& executablePath,
        const ExtensionAssociation& association);
    /// Undoes AddProgId().
    static void RemoveProgId(const QString& prefix, const AutoPlayAssociation& association);
    /// Undoes AddProgId().
    static void RemoveProgId(const QString& prefix, const ExtensionAssociation& association);
    /// Makes the ProgIDs of AddProgId() the defaults of their extensions, or open-with candidates.
    static void AddAssociations(
        const QString& prefix, const ExtensionAssociation& association, QSettings::Scope scope);
    /// Removes ProgIDs of this association's name that open with its program, whatever their
    /// prefix.
    static void RemoveAssociations(const ExtensionAssociation& association, QSettings::Scope scope);
    /// Offers the program for AutoPlay's events. The action is translated with the translators that
    /// are installed now; `provider` is shown beside it.
    static void AddAutoplayHandlers(const QString& prefix, const QString& installDir,
        const QString& provider, const AutoPlayAssociation& association, QSettings::Scope scope);
    /// Undoes AddAutoplayHandlers().
    static void RemoveAutoplayHandlers(
        const QString& prefix, const AutoPlayAssociation& association, QSettings::Scope scope);
    /// Lets a program open links of a scheme. `handlerProgram` is a file name without ".exe".
    static void AddCustomProtocol(const QString& scheme, const QString& handlerProgram,
        const QString& installDir, QSettings::Scope scope);
    /// Removes the scheme, whatever its handler.
    static void RemoveCustomProtocol(const QString& scheme, QSettings::Scope scope);
    /// Adds a verb to the context menu of files. The label, translated already, is its name.
    /// Extensions have their leading dots; without any, or without a label, nothing is written.
    static void AddToContextMenu(const QString& label, const QString& executablePath,
        const QStringList& extensions, QSettings::Scope scope);
    /// Undoes AddToContextMenu() where the verb still starts this program.
    static void RemoveContextMenu(const QString& label, const QString& executablePath,
        const QStringList& extensions, QSettings::Scope scope);
    /// Starts a program at logon through the Run key. `arguments` is one command line.
    static void AddToAutoRun(const QString& name, const QString& executablePath,
        const QString& arguments, QSettings::Scope scope);
    /// Undoes AddToAutoRun() where the entry still starts this program.
    static void RemoveFromAutoRun(
        const QString& name, const QString& executablePath, QSettings::Scope scope);

    /// Writes an entry of the list of installed programs. The two file names are relative to the
    /// installation folder.
    static void AddUninstaller(const ProgramInfo& info, const QString& installDir,
        const QString& uninstallerFileName, const QString& iconFileName, QSettings::Scope scope);
    /// Removes the entry of this key name; an empty name removes nothing.
    static void RemoveUninstaller(const QString& name, QSettings::Scope scope);
    /// The uninstaller of an entry of the list of installed programs, without quotes. This and the
    /// next look for the entry in the user's list, then the machine's, 64-bit before 32-bit views.
    static QString GetUninstallerPath(const QString& name);
    /// Whether the entry's uninstaller asks for elevation: "UseUAC" is the text "true".
    static bool IsUninstallerUACNeeded(const QString& name);
    /// The entry of this maker whose icon names the executable; empty when there is none.
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
