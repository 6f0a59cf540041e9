#include "installer/InstallerMediator.h"

#include "base/Localization.h"
#include "registry/RegistrySettings.h"
#include "support/ArchiveBesideProgram.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QMetaMethod>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class InstallerMediatorTest : public testing::Test
{
protected:
    std::unique_ptr<InstallerMediator> Create(bool withArchive = false)
    {
        return std::make_unique<InstallerMediator>(InstallerMediator::Initializer{
            installerName, withArchive, true, QSettings::UserScope, false});
    }

    void Store(const QString& name, const QVariant& value)
    {
        RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24").setValue(name, value);
    }

    Machine machine;
    const QString installerName = "QuillaxSetupF.exe";
};

} // namespace

TEST_F(InstallerMediatorTest, ProposesTheProductOnAnEmptyMachine)
{
    const auto mediator = Create();
    const InstallationSettings& settings = mediator->GetSettings();
    EXPECT_EQ(settings.productId, "quillax");
    EXPECT_EQ(settings.versionByInstaller, "24-5-1");
    EXPECT_EQ(settings.productFolderName, "Vorlan Quillax");
    EXPECT_EQ(settings.productDisplayName, "Vorlan Quillax");
    EXPECT_EQ(settings.previousFolderName, "Vorlan Quillax");
    EXPECT_EQ(settings.mainExeName, "quill.exe");
    EXPECT_EQ(settings.mainAppIpcId, "quill");
    EXPECT_EQ(settings.parentProductId, "");
    EXPECT_EQ(settings.installerName, installerName);
    EXPECT_EQ(settings.browser, "firefox.exe");
    EXPECT_EQ(settings.scope, QSettings::UserScope);
    EXPECT_TRUE(settings.isNewerVersion);
    EXPECT_TRUE(settings.createShortcuts);
    EXPECT_FALSE(settings.statisticsKeyExists);
    EXPECT_FALSE(settings.profileModeFlag);
    EXPECT_EQ(settings.requiredSpace, 0u);
    EXPECT_TRUE(QDir::fromNativeSeparators(settings.installDir)
                    .endsWith("/AppData/Roaming/Vorlan Quillax/"))
        << settings.installDir.toStdString();
    EXPECT_EQ(mediator->GetInstallationState(), InstallationState::NotStarted);
    EXPECT_EQ(mediator->GetApplicationName(), "Quillax24");
    EXPECT_EQ(InstallerMediator::GetUninstName(), "uninst.exe");
    EXPECT_EQ(ObjectsConnectorID::REQUESTED_CLOSE, "REQUESTED_CLOSE");
    EXPECT_EQ(ObjectsConnectorID::REQUESTED_MINIMIZE, "REQUESTED_MINIMIZE");
}

TEST_F(InstallerMediatorTest, KnowsWhatIsInstalledAlready)
{
    Store("Path", QDir::toNativeSeparators("/Tools/Old Name/"));
    Store("sendStatistics", true);
    EXPECT_EQ(Create()->GetSettings().previousFolderName, "Old Name");
    EXPECT_TRUE(Create()->GetSettings().statisticsKeyExists);

    const std::pair<const char*, bool> versions[] = {{"24-5-1", false}, {"24-4-0", true},
        {"24-5", true}, {"24-10-0", false}, {"25-0", false}, {"", true}, {"no version", true}};
    for (const auto& [version, isNewer] : versions)
    {
        Store("Version", version);
        EXPECT_EQ(Create()->GetSettings().isNewerVersion, isNewer) << version;
    }
}

TEST_F(InstallerMediatorTest, LanguagesAreReducedToTheSupportedOnes)
{
    struct Case
    {
        const char* stored;
        const char* system;
        const char* locale;
        const char* systemLocale;
    };
    const Case cases[] = {
        {"", "de_DE", "de_DE", "de_DE"},
        {"", "sv_SE", "en_US", "en_US"},
        {"", "de_AT", "en_US", "en_US"},
        {"ja_JP", "de_DE", "ja_JP", "de_DE"},
        {"xx_XX", "fr_FR", "en_US", "fr_FR"},
        {"JA_jp", "fr_FR", "en_US", "fr_FR"},
    };
    const QLocale former;
    for (const Case& test : cases)
    {
        QLocale::setDefault(QLocale(test.system));
        Store("locale", test.stored);
        const auto mediator = Create();
        EXPECT_EQ(mediator->GetSettings().locale, test.locale) << test.stored << test.system;
        EXPECT_EQ(mediator->GetSettings().systemLocale, test.systemLocale) << test.system;
    }
    QLocale::setDefault(former);
    const QStringList log = machine.Log();
    EXPECT_TRUE(log.contains("Get system locale code:  \"sv_SE\""));
    EXPECT_TRUE(log.contains("Defined system locale =  \"fr_FR\""));
}

TEST_F(InstallerMediatorTest, ProductNameComesFromTheSettingsFileInTheInstallationsLanguage)
{
    WriteFile("settings.ini", "Quillax_DE_DE=Quill\xC3\xA4x\n");
    const auto mediator = Create();
    mediator->OnLocaleChanged("de_DE");
    EXPECT_EQ(mediator->GetSettings().locale, "de_DE");
    EXPECT_EQ(mediator->GetProductName(), QString::fromUtf8("Quill\xC3\xA4x"));
    mediator->OnLocaleChanged("pt_BR");
    EXPECT_EQ(mediator->GetProductName(), "Quillax");
}

TEST_F(InstallerMediatorTest, SettingsAreReplacedAsAWhole)
{
    const auto mediator = Create();
    InstallationSettings settings = mediator->GetSettings();
    settings.installDir = machine.Path("apps/");
    settings.browser.clear();
    settings.installerName = "QuillaxSetupC.exe";
    mediator->SetSettings(settings);
    EXPECT_EQ(mediator->GetSettings().installDir, machine.Path("apps/"));
    EXPECT_EQ(mediator->GetSettings().browser, "chrome.exe");
}

TEST_F(InstallerMediatorTest, ArchiveTellsTheSpaceThatIsNeeded)
{
    {
        const ArchiveBesideProgram archive(Payload("small.7z"));
        quint64 size = 0;
        for (const QByteArray& content : ReadTree(Payload("small-content")))
            size += static_cast<quint64>(content.size());
        const auto mediator = Create(true);
        EXPECT_EQ(mediator->GetSettings().requiredSpace,
            static_cast<quint64>(static_cast<double>(size) * 0.02 + static_cast<double>(size)));
        EXPECT_GT(mediator->GetSettings().longestEntryNameLength, 0u);
    }
    {
        WriteFile(machine.Path("garbage"), "no archive");
        const ArchiveBesideProgram archive(machine.Path("garbage"));
        EXPECT_THROW(Create(true), std::runtime_error);
    }
    QString boxText;
    QTimer::singleShot(0,
        [&]
        {
            QWidget* box = QApplication::activeModalWidget();
            boxText = box->findChild<QLabel*>("message")->text();
            box->close();
        });
    const auto mediator = Create(true);
    EXPECT_EQ(
        boxText, "The archive \"InstallerData.7z\" was not found in the installation directory!");
    EXPECT_EQ(mediator->GetSettings().requiredSpace, 0u);
    EXPECT_EQ(mediator->GetSettings().longestEntryNameLength, 0u);
}

TEST_F(InstallerMediatorTest, MarkerOfTheOutsideExtractorIsRemoved)
{
    const auto mediator = Create();
    mediator->NotifyExtractorOnReady();
    WriteFile("installer_extractor_tmp_marker.txt", "");
    mediator->NotifyExtractorOnReady();
    EXPECT_EQ(ListTree("."), QStringList());
}

TEST_F(InstallerMediatorTest, MetaObjectCarriesEverySignalAndSlotWithItsNames)
{
    const QStringList expected = {
        "ApplicationStarted(QString method)",
        "InstallationStarted()",
        "InstallationProgress(double p, QString , QString progressText)",
        "InstallationProgress(double p, QString )",
        "InstallationFinished()",
        "InstallationError(QString text, int currentPage)",
        "TrackCoreStatistics(std::map<std::string,std::map<std::string,std::string> > "
        "statisticInfo)",
        "ProcessStarted(std::string process)",
        "WebConfigLoaderStarted()",
        "WebConfigLoaderFinished(int returnCode)",
        "FilesExtracted(float time)",
        "CopyFileError(QString fileName, QString reason)",
        "StartInstallation()",
        "StartUninstall()",
        "StartMainExecutable(QString method)",
        "StartMainExecutable()",
        "StartPushNotificationHelper()",
        "OnLocaleChanged(QString localeCode)",
        "OnDeleteUserSettings(bool isChecked)",
    };
    const QMetaObject& meta = InstallerMediator::staticMetaObject;
    EXPECT_STREQ(meta.className(), "Vorlan::InstallerMediator");
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    {
        const QMetaMethod method = meta.method(i);
        QStringList parameters;
        for (int p = 0; p < method.parameterCount(); ++p)
            parameters += method.parameterTypes()[p] + ' ' + method.parameterNames()[p];
        methods += method.name() + '(' + parameters.join(", ") + ')';
    }
    EXPECT_EQ(methods, expected);
}

TEST_F(InstallerMediatorTest, TranslationIsThatOfTheGivenLanguageOrEmpty)
{
    EXPECT_EQ(TranslateForLocale("de_DE", "Convert to"), "");
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    EXPECT_EQ(TranslateForLocale("de_DE", "Convert to"), "Konvertieren in");
    EXPECT_NE(TranslateForLocale("ja_JP", "Open with"), "");
    EXPECT_EQ(TranslateForLocale("de_DE", "No such text"), "");
    EXPECT_EQ(TranslateForLocale("xx_XX", "Convert to"), "");
}
