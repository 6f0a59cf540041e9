#pragma once

#include "base/Export.h"

#include <QMap>
#include <QSettings>
#include <QString>

namespace Vorlan
{

/// The identity of the user. Plain data.
struct INSTALLER_EXPORT UserInfoSettings
{
    QString webUid; ///< web user id; empty when there is none
};

/// All parameters of an installation or an uninstallation. The mediator proposes a record
/// (InstallerMediator::GetSettings), the front end changes what the user may change and hands it
/// back (InstallerMediator::SetSettings) before it starts the work. Tri-state options are 0 (not
/// asked), 1 (declined) or 2 (chosen); only 2 switches a behaviour on. Copying is member-wise. What
/// is called "the front end's own" is stored and handed back, and never read.
struct INSTALLER_EXPORT InstallationSettings
{
    QString mainAppArguments;   ///< for starting the main application, split at every single space
    QString installDir;         ///< destination, ends with the native separator
    QString productId;          ///< application id, for example "quillax"
    QString versionByInstaller; ///< version with "-" between its parts: "24-5-1"
    QString productFolderName;  ///< full product name: last folder, uninstall entry, App Paths key
    QString mainExeName;        ///< file name of the main executable
    QString mainAppIpcId;       ///< short name of the main application
    QString parentProductId;    ///< id of a parent product, empty when there is none
    QString previousFolderName; ///< folder name of the installation already on the machine
    QString productDisplayName; ///< full product name for display
    QString locale;             ///< language of the installation, one of the supported ones
    QString systemLocale;       ///< language of the system, reduced to the supported ones
    QSettings::Scope scope = QSettings::UserScope; ///< for this user or for all users
    QString installerName;                         ///< file name of the running installer
    QString hostText2;                             ///< the front end's own
    QString browser;                               ///< browser tag of the installer
    QString vendorProductModel;                    ///< stored when not empty
    UserInfoSettings userInfo;                     ///< goes to the per-user key
    QString webConfigParameter;                    ///< for the remote configuration request
    QMap<QString, QString> extraValues;            ///< further values of the product key
    QString partnerNameOverride;                   ///< stored as "PartnerName.OVERRIDE"
    QString brokenPluginsPath;                     ///< file of known broken plug-ins
    QString brokenCodecsPath;                      ///< file of known broken codecs
    int coreCheckTimeout = 0;                      ///< limit of the capability check, seconds
    QString verifiableCodecImpls;                  ///< comma-separated; empty: the default list
    QString verifiableCodecs;                      ///< comma-separated; empty: the default list
    quint64 longestEntryNameLength = 0; ///< longest name in the payload, UTF-16 code units
    quint64 requiredSpace = 0;          ///< disk space that the installation needs, bytes
    bool statisticsKeyExists = false;   ///< the person was asked about statistics before
    bool isInStartup = false;           ///< the product starts at logon already
    bool hostFlag1 = false;             ///< the front end's own
    bool removeAllOnUninstall = false;  ///< an uninstallation removes the whole product key
    bool profileModeFlag = false;       ///< the product profile's mode is 1
    bool hostFlag2 = false;             ///< the front end's own
    bool hostFlag3 = false;             ///< the front end's own
    bool createShortcuts = true;        ///< create the Start-menu and desktop shortcuts
    bool isNewerVersion = true;         ///< nothing, or an older version, is installed
    int sendStatistics = 0;             ///< tri-state; 1 is stored as "no", 2 as "yes"
    int hostOption = 0;                 ///< the front end's own
    int autoLaunch = 0;                 ///< tri-state: start at logon
    int contextMenuConvert = 0;         ///< tri-state: "Convert to" in the Explorer context menu
    int contextMenuOpenWith = 0;        ///< tri-state: "Open with" in the Explorer context menu
    int defaultApps = 0;                ///< tri-state: become the default application
    int downloadAdditionalData = 0;     ///< tri-state: download the product's additional data

    /// The folder a user chose, made fit for installation: without quotes, with native separators,
    /// ending with the product's folder and a separator. The comparison of that folder is
    /// case-sensitive. Looks at the text only, not at the disk.
    QString GetFilteredDirectory(QString dir) const;

    /// installDir followed directly by mainExeName; installDir ends with a separator.
    QString GetFullPathToMainAppExe() const;

    /// Whether the folder can be used and its volume has requiredBytes left: an absolute path of
    /// allowed names, below a folder that exists and can be written. On refusal `error` gets a
    /// translated message, else it is left alone. Changes nothing on disk, throws nothing; may be
    /// called on any thread, and takes as long as the disk does.
    static bool IsValidPath(const QString& path, long long requiredBytes, QString& error);
};

} // namespace Vorlan
