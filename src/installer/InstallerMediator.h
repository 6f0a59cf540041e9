#pragma once

#include "base/Export.h"
#include "base/InstallationSettings.h"

#include <QFileInfoList>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

struct ExtractSettings;

/// The installation engine.
namespace Vorlan
{

class ArchiveExtractor;
class SettingsManager;
struct RegistrationProfile;
struct WaitClock;

namespace App
{
class AbstractPreferredBrowser;
class URLHandler;
} // namespace App

namespace Installer
{
class IAccelerationChecker;
} // namespace Installer

/// State of a mediator's current or last run. A failed run returns to NotStarted.
enum class InstallationState : int
{
    NotStarted = 0, ///< also after a failure
    InProgress = 1, ///< from StartInstallation or StartUninstall on
    Finished = 2    ///< the last run succeeded
};

/// Names that front ends use to wire their own objects together. The engine does not use them.
struct INSTALLER_EXPORT ObjectsConnectorID
{
    static const QString REQUESTED_CLOSE;    ///< "REQUESTED_CLOSE"
    static const QString REQUESTED_MINIMIZE; ///< "REQUESTED_MINIMIZE"
};

/// The engine's one public object: it proposes the settings of an installation or an uninstallation
/// and runs it. A front end constructs one, connects to its signals (queued), changes the proposed
/// settings, and calls StartInstallation or StartUninstall.
///
/// Threads: construction, slots and getters belong to the front end's thread. A run works on a
/// thread of its own and emits its signals from there; while it is InProgress the settings must not
/// be changed. Neither may the mediator be destroyed, nor a run started, from the run's own thread.
class INSTALLER_EXPORT InstallerMediator : public QObject
{
    Q_OBJECT

public:
    /// What a mediator is constructed for.
    struct Initializer
    {
        const QString& installerName; ///< file name of the running installer
        bool withArchive;             ///< an installer: look for the payload archive and open it
        bool unattended;              ///< silent: no default applications, and an uninstallation
                                      ///< only does what the settings ask for
        QSettings::Scope scope;       ///< for this user or for all users
        bool parallelCopy;            ///< files may be copied in parallel
    };

    /// A file that an installation places.
    struct PlacedFile
    {
        QString path;     ///< relative to the installation folder, with "/"
        qint64 size = -1; ///< in bytes; -1 where it is only known after the installation
    };

    /// The vendor's pages. The numbers are fixed.
    enum class URL : int
    {
        ThanksForYourInterest = 0, ///< after a cancelled installation
        UninstallPage = 1,         ///< survey after an uninstallation
        StartPage = 2,             ///< the product's own page
        BuyFromUninstaller = 3,    ///< offer before an uninstallation
        PrivacyPolicy = 4,
        Ideas = 5 ///< where people send what they miss
    };

    /// Proposes the settings from the product and from what is on the machine. With `withArchive` a
    /// missing archive is reported in a modal box and leaves a mediator that cannot install; one
    /// that cannot be read throws std::runtime_error.
    explicit InstallerMediator(const Initializer& initializer);

    /// Waits for a run in progress.
    ~InstallerMediator() override;

    /// The settings as they are now: proposed, or last set.
    const InstallationSettings& GetSettings() const;

    /// Replaces the settings as a whole, then looks up the preferred browser again.
    void SetSettings(const InstallationSettings& newSettings);

    /// May be asked from any thread.
    InstallationState GetInstallationState() const;

    /// The product's name in the installation's language, as "settings.ini" gives it.
    QString GetProductName() const;

    /// The name of the product's registry key.
    QString GetApplicationName() const;

    /// The file name under which the front end is placed as the uninstaller.
    static QString GetUninstName();

    /// The "settings.ini" of the folder that was current at construction; shared, never null.
    std::shared_ptr<QSettings> GetProductSettings() const;

    /// The web user id stored on this machine, whatever it holds: that of the user, else that of
    /// the product.
    QString GetWebUID() const;
    QString GetWebUIDFromProductKey() const; ///< that of the product
    QString GetWebUIDFromUserKey() const;    ///< that of the user

    /// Tells the program that unpacked this installer that it is ready, by removing the marker file
    /// "installer_extractor_tmp_marker.txt" from the current folder.
    void NotifyExtractorOnReady();

    /// The files that an installation leaves in its folder: those of the payload under the names
    /// that they get, and those that the engine itself writes or saves of an older version, which
    /// need not be there. Without a payload archive only the latter, the main program and the
    /// uninstaller.
    std::vector<PlacedFile> ListPlacedFiles() const;

    /// The address that a template stands for: `<APP>`, `<VERSION>`, `<LANG>`, `<PARTNER>`,
    /// `<HASH_USER_ID>`, `<BUILD_NAME>` and `<BRAND_NAME>` in it are replaced, as they are.
    QString GetUrl(const QString& urlTemplate) const;
    /// The address of a kind of page; empty for an unknown kind.
    QString GetUrl(URL url) const;

    /// Opens that address in the user's browser; whether that works is not examined.
    void OpenUrl(const QString& urlTemplate) const;
    /// The same for a kind of page; nothing for an unknown kind.
    void OpenUrl(URL url) const;

public slots:
    /// Starts an installation and returns; waits first for a run that has not ended. Without a
    /// payload archive it ends with InstallationError.
    void StartInstallation();
    /// The same for an uninstallation. It removes the files of the running program's own folder:
    /// the program is the uninstaller that was placed with the product.
    void StartUninstall();
    /// Starts the installed main application with the settings' arguments; whether that works is
    /// not examined. `method` is the front end's name for the occasion, handed on with
    /// ApplicationStarted.
    void StartMainExecutable(const QString& method = QStringLiteral("Manual"));
    /// Does nothing: this product has no such helper.
    void StartPushNotificationHelper();
    /// Sets InstallationSettings::locale, unexamined.
    void OnLocaleChanged(QString localeCode);
    /// Whether an uninstallation removes the user's settings and the logs too; false at first.
    void OnDeleteUserSettings(bool isChecked);

signals:
    /// On the caller's thread: the main application was started.
    void ApplicationStarted(const QString& method);
    /// On the caller's thread: a run begins.
    void InstallationStarted();
    /// Position of the bar from 0.0 to 1.0, the title of a stage and the text of a step; either
    /// text may be empty.
    void InstallationProgress(double p, QString, const QString& progressText = QString());
    /// Ends a run that succeeded.
    void InstallationFinished();
    /// Ends a run that failed: a translated text, and the InstallationState when it failed. What
    /// was done stays done, and a new run may be started.
    void InstallationError(QString text, int currentPage);
    /// Statistics of the capability check. Front ends that connect queued register the type under
    /// its written name, "std::map<std::string,std::map<std::string,std::string> >".
    void TrackCoreStatistics(
        const std::map<std::string, std::map<std::string, std::string>>& statisticInfo);
    /// A stage begins. Front ends that connect queued register "std::string" under that name.
    void ProcessStarted(const std::string& process);
    /// The request for the remote configuration begins.
    void WebConfigLoaderStarted();
    /// It has ended: 0 received, 1 failed, 2 offline, 3 timed out, 4 not trusted, 5 refused,
    /// 6 malformed, 7 not stored, 8 switched off. None of them stops the installation.
    void WebConfigLoaderFinished(int returnCode);
    /// Seconds that placing the files took, to one decimal.
    void FilesExtracted(float time);
    /// A file could not be copied, reserved or moved, for a reason in English; at most nine of
    /// these per mediator.
    void CopyFileError(const QString& fileName, const QString& reason);

private:
    friend struct MediatorAccess; // tests reach the stages one by one

    // Shown by the product while a setup is running.
    static constexpr char installerMessageScript[] = "InstallerMessage.vbs";

    struct CopyOperationInfo
    {
        quint64 copiedBytes = 0;
        quint64 copiedFiles = 0;
        quint64 skippedFiles = 0; // folders, excluded names, absent and empty files
    };

    // A bare mediator over an existing product key: no profile, no archive, no languages.
    InstallerMediator(const InstallationSettings& initialSettings, const QString& applicationKey);

    // Construction (InstallerMediator.cpp)
    void FillSettings(const Initializer& initializer);
    QString PreviousFolderName() const;
    bool IsNewerThanInstalled() const;
    void DetermineLocale();
    void OpenArchive();
    QString GetLocationLogs() const;

    // A run on the worker thread (InstallationPipeline.cpp): Extract guards RunInstallation.
    void StartRun(void (InstallerMediator::*run)());
    void Extract();
    void RunInstallation();
    void ReportFailure();
    void BeginStage(const char* stageId, const char* logText);
    bool WillDownloadAdditionalData() const;
    static std::shared_ptr<Installer::IAccelerationChecker> MakeChecker();
    void StartCapabilityCheck(Installer::IAccelerationChecker& checker) const;
    void StopRunningPrograms();
    void PlaceFiles(const QStringList& reservedNames, double weight);
    void StoreCapabilityResults(Installer::IAccelerationChecker& checker, double position);
    void DownloadAdditionalData(double start, double range);

    // Placing files (FilePlacement.cpp)
    QStringList ReserveFilesForReinstall();
    void ExtractFiles(const QStringList& reservedNames, double weight);
    CopyOperationInfo CopyExistingFiles(const std::function<void(unsigned long long)>& progress,
        ExtractSettings& selection, const QStringList& reservedNames);
    CopyOperationInfo CopyOneAfterAnother(const std::function<void(unsigned long long)>& progress,
        ExtractSettings& selection, const std::vector<std::wstring>& names);
    CopyOperationInfo ParallelCopyExistingFiles(
        const std::function<void(unsigned long long)>& progress, ExtractSettings& selection,
        const std::vector<std::wstring>& names, int threadCount);
    void HandleCopyFileError(const QString& fileName, const QString& reason);
    void UpdateProgramData();

    // Uninstallation (UninstallationPipeline.cpp): Uninstall guards RunUninstallation
    void Uninstall();
    void RunUninstallation();
    bool RefuseForDependentApplications();
    QFileInfoList GetFilesList(unsigned long long& totalSize) const;
    void RemoveFiles(const QFileInfoList& files, unsigned long long totalSize);
    void RemoveLogs();
    void CreateInstallerMessageScript() const;

    // Other programs (ProcessTermination.cpp, InstalledUninstallers.cpp)
    void TerminateApps();
    void RemovePreviousVersion();
    void RemoveAdditionalModules();

    // Registration with the system (registry/RegistrationStep.cpp)
    void AddRegistryInfo();
    void AddContextMenu(int choice, const char* label) const;
    void RemoveRegistryInfo();
    void SetDefaultApps();

    // Shortcuts and links (Shortcuts.cpp, VendorLinks.cpp)
    QString CreateMenuBasePath(QString root) const;
    QString CreateMenuAppPath(QString base) const;
    QString CreateShortcutName(const QString& name) const;
    QStringList AppendExtraParams(const QString& parameters) const;
    QString CreateUrlFilename() const;
    void CreateShortcuts() const;
    void RemoveShortcuts();
    void CheckForPreferredBrowser();

    std::shared_ptr<QSettings> productIniSettings;
    std::shared_ptr<App::AbstractPreferredBrowser> preferredBrowser;
    std::unique_ptr<SettingsManager> settingsManager;
    std::unique_ptr<ArchiveExtractor> extractor;
    std::unique_ptr<App::URLHandler> urlHandler;
    std::thread worker;
    InstallationSettings settings;
    std::unique_ptr<RegistrationProfile> profile; // never null
    bool parallelCopy = false;
    bool unattended = false;
    bool deleteUserSettings = false;
    int copyErrorCount = 0;
    std::atomic<InstallationState> state{InstallationState::NotStarted};
    std::unique_ptr<WaitClock> waitClock; // passes the time while an old uninstaller works
    std::function<std::shared_ptr<Installer::IAccelerationChecker>()> makeChecker = MakeChecker;
};

} // namespace Vorlan
