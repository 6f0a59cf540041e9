#include "installer/InstallerMediator.h"

#include "archive/ArchiveExtractor.h"
#include "autolaunch/StartupRegistration.h"
#include "base/ProductProfile.h"
#include "installer/Shortcuts.h"
#include "installer/SilentUninstaller.h"
#include "platform/Browser.h"
#include "platform/Path.h"
#include "platform/Version.h"
#include "registry/CreateProductProfile.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"
#include "widgets/AlertBox.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QLocale>

namespace Vorlan
{

const QString ObjectsConnectorID::REQUESTED_CLOSE = QStringLiteral("REQUESTED_CLOSE");
const QString ObjectsConnectorID::REQUESTED_MINIMIZE = QStringLiteral("REQUESTED_MINIMIZE");

namespace
{

constexpr char extractorMarker[] = "installer_extractor_tmp_marker.txt";

// The locale itself where the product speaks it, else its default language.
QString ReduceToSupported(const QString& locale)
{
    const QStringList supported = ProductProfile::SupportedLocales();
    if (supported.contains(locale))
        return locale;
    const QString fallback = ProductProfile::defaultLocale;
    return supported.contains(fallback) ? fallback : supported.first();
}

// The unpacked payload and 2 per cent for what the file system adds.
quint64 SpaceFor(quint64 unpackedSize)
{
    const auto size = static_cast<double>(static_cast<qint64>(unpackedSize));
    return static_cast<quint64>(size * 0.02 + size);
}

} // namespace

InstallerMediator::InstallerMediator(const Initializer& initializer)
    : productIniSettings(std::make_shared<QSettings>("settings.ini", QSettings::IniFormat)),
      settingsManager(std::make_unique<SettingsManager>(
          ProductProfile::applicationKey, ProductProfile::companyName, initializer.scope)),
      profile(std::make_unique<RegistrationProfile>(CreateProductProfile())),
      parallelCopy(initializer.parallelCopy),
      unattended(initializer.unattended),
      waitClock(std::make_unique<WaitClock>(SystemClock()))
{
    productIniSettings->setIniCodec("UTF-8");
    FillSettings(initializer);
    CheckForPreferredBrowser();
    if (initializer.withArchive)
        OpenArchive();
}

InstallerMediator::InstallerMediator(
    const InstallationSettings& initialSettings, const QString& applicationKey)
    : settingsManager(std::make_unique<SettingsManager>(
          applicationKey, ProductProfile::companyName, QSettings::UserScope)),
      settings(initialSettings),
      profile(std::make_unique<RegistrationProfile>()),
      waitClock(std::make_unique<WaitClock>(SystemClock()))
{
    CheckForPreferredBrowser();
}

InstallerMediator::~InstallerMediator()
{
    if (worker.joinable())
        worker.join();
}

void InstallerMediator::FillSettings(const Initializer& initializer)
{
    const QChar separator = QDir::separator();
    settings.scope = initializer.scope;
    settings.installerName = initializer.installerName;
    settings.productId = ProductProfile::applicationId;
    settings.versionByInstaller = QString(ProductProfile::versionText).replace('.', '-');
    settings.mainExeName = profile->mainExecutable;
    settings.mainAppIpcId = ProductProfile::shortName;
    settings.productFolderName = ProductProfile::productFullName;
    settings.productDisplayName = ProductProfile::productFullName;
    settings.profileModeFlag = profile->mode == 1;
    settings.isNewerVersion = IsNewerThanInstalled();
    settings.previousFolderName = PreviousFolderName();
    const QString appData = GetStandardLocation(StandardLocation::AppData);
    if (!appData.isEmpty()) // else nothing is proposed, rather than the root of a drive
        settings.installDir = appData + separator + settings.productFolderName + separator;
    settings.statisticsKeyExists = settingsManager->StatisticsKeyExists();
    DetermineLocale();

    const AutoLaunchApp app{profile->autoLaunchAppId.toStdString(),
        (settings.installDir + ProductProfile::uninstallerFileName).toStdString(), {}};
    settings.isInStartup = IsAppInStartup(settings.scope, app, ThisProduct());
}

QString InstallerMediator::PreviousFolderName() const
{
    const QStringList folders =
        settingsManager->GetInstallLocation().split(QDir::separator(), Qt::SkipEmptyParts);
    return folders.isEmpty() ? settings.productFolderName : folders.last();
}

bool InstallerMediator::IsNewerThanInstalled() const
{
    if (settingsManager->GetInstallLocation().isEmpty())
        return true;
    const std::string installed = settingsManager->GetInstalledVersion().toStdString();
    return Core::Util::VersionFromString(ProductProfile::versionText.data(), ".") >
           Core::Util::VersionFromString(installed, "-");
}

void InstallerMediator::DetermineLocale()
{
    settings.locale = settingsManager->GetLocale();
    const QString systemLanguage = QLocale().uiLanguages().value(0);
    settings.systemLocale = QLocale(systemLanguage).name();
    qInfo() << "Get system locale code: " << settings.systemLocale;

    if (settings.locale.isEmpty())
        settings.locale = settings.systemLocale;
    settings.locale = ReduceToSupported(settings.locale);
    settings.systemLocale = ReduceToSupported(settings.systemLocale);
    qInfo() << "Defined system locale = " << settings.systemLocale;
}

void InstallerMediator::OpenArchive()
{
    const QString path = QCoreApplication::applicationDirPath() + QDir::separator() +
                         ProductProfile::archiveFileName;
    if (!QFile::exists(path))
    {
        AlertBox::error(nullptr,
            QLatin1String("The archive \"") + ProductProfile::archiveFileName +
                QLatin1String("\" was not found in the installation directory!"),
            false);
        return;
    }
    extractor = std::make_unique<ArchiveExtractor>(Platform::WideFromText(path));
    settings.longestEntryNameLength = extractor->GetLongestNameLength();
    settings.requiredSpace = SpaceFor(extractor->GetTotalUnpackedSize());
}

const InstallationSettings& InstallerMediator::GetSettings() const
{
    return settings;
}

void InstallerMediator::SetSettings(const InstallationSettings& newSettings)
{
    settings = newSettings;
    CheckForPreferredBrowser();
}

InstallationState InstallerMediator::GetInstallationState() const
{
    return state;
}

QString InstallerMediator::GetProductName() const
{
    QString name = ProductProfile::productName;
    if (!productIniSettings)
        return name;
    return productIniSettings->value(name + '_' + settings.locale.toUpper(), name).toString();
}

QString InstallerMediator::GetApplicationName() const
{
    return ProductProfile::applicationKey;
}

QString InstallerMediator::GetUninstName()
{
    return ProductProfile::uninstallerFileName;
}

std::shared_ptr<QSettings> InstallerMediator::GetProductSettings() const
{
    return productIniSettings;
}

void InstallerMediator::NotifyExtractorOnReady()
{
    QFile::remove(extractorMarker);
}

void InstallerMediator::StartPushNotificationHelper() {}

void InstallerMediator::OnLocaleChanged(QString localeCode)
{
    settings.locale = std::move(localeCode);
}

void InstallerMediator::OnDeleteUserSettings(bool isChecked)
{
    deleteUserSettings = isChecked;
}

} // namespace Vorlan
