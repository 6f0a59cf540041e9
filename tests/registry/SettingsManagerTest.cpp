#include "registry/SettingsManager.h"

#include "base/InstallationSettings.h"
#include "platform/Registry.h"
#include "registry/RegistrySettings.h"
#include "support/Machine.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class SettingsManagerTest : public testing::Test
{
protected:
    // Every value of a key as text, "name=value", sorted.
    static QStringList Values(const QString& key)
    {
        RegistrySettings settings("HKEY_CURRENT_USER\\Software\\Vorlan\\" + key);
        QStringList values;
        for (const QString& name : settings.childKeys())
            values += name + '=' + settings.value(name).toString();
        values.sort();
        return values;
    }

    static InstallationSettings Settings()
    {
        InstallationSettings settings;
        settings.locale = "de_DE";
        settings.installDir = "/apps/Vorlan Quillax/";
        settings.productId = "quillax";
        settings.versionByInstaller = "24-5-1";
        settings.mainExeName = "quill.exe";
        settings.mainAppIpcId = "quill";
        return settings;
    }

    Machine machine;
    SettingsManager manager{"Quillax24", "Vorlan", QSettings::UserScope};
    RegistrySettings product{QSettings::UserScope, "Vorlan", "Quillax24"};
};

} // namespace

TEST_F(SettingsManagerTest, PlainInstallationWritesExactlyItsValues)
{
    manager.SetSettings(Settings());

    const QString date = product.value("DateTime").toString();
    EXPECT_TRUE(QDateTime::fromString(date, "dd/MM/yyyy hh:mm:ss").isValid()) << date.toStdString();
    EXPECT_EQ(Values("Quillax24"),
        QStringList({"ArchitectBits=x64", "DateTime=" + date,
            "ExePath=/apps/Vorlan Quillax/quill.exe", "MainAppIpcId=quill",
            "ParentProductId=", "PartnerName.OVERRIDE=", "Path=/apps/Vorlan Quillax/",
            "ProductId=quillax", "VersionByInstaller=24-5-1", "autoUpdate=true", "locale=de_DE"}));
    EXPECT_EQ(manager.GetInstallLocation(), "/apps/Vorlan Quillax/");
    EXPECT_EQ(manager.GetArchitectBits(), "x64");
    EXPECT_EQ(manager.GetLocale(), "de_DE");
}

TEST_F(SettingsManagerTest, OptionalValuesAreWrittenWhenThereIsSomethingToWrite)
{
    InstallationSettings settings = Settings();
    settings.installerName = "QuillaxSetupSY.exe";
    settings.vendorProductModel = "Model 3";
    settings.partnerNameOverride = "partner";
    settings.extraValues = {{"Campaign", "autumn"}, {"Group/Inner", "1"}};
    manager.SetSettings(settings);

    EXPECT_EQ(product.value("InstallerName").toString(), "QuillaxSetupSY.exe");
    EXPECT_EQ(product.value("VendorProductModel").toString(), "Model 3");
    EXPECT_EQ(product.value("PartnerName.OVERRIDE").toString(), "partner");
    EXPECT_EQ(product.value("Campaign").toString(), "autumn");
    EXPECT_EQ(Values("Quillax24\\Group"), QStringList("Inner=1"));
    EXPECT_EQ(manager.GetInstallerBrowser(), "safari.exe");
}

TEST_F(SettingsManagerTest, SecondInstallationKeepsBrowserAndAutoUpdate)
{
    InstallationSettings settings = Settings();
    settings.browser = "firefox.exe";
    manager.SetSettings(settings);
    product.setValue("autoUpdate", false);

    settings.browser = "chrome.exe";
    settings.locale = "fr_FR";
    manager.SetSettings(settings);
    EXPECT_EQ(manager.GetInstallerBrowser(), "firefox.exe");
    EXPECT_EQ(product.value("autoUpdate").toString(), "false");
    EXPECT_EQ(manager.GetLocale(), "fr_FR");
}

TEST_F(SettingsManagerTest, StatisticsChoiceIsStoredOnceItIsMade)
{
    InstallationSettings settings = Settings();
    const auto stored = [&](int choice)
    {
        settings.sendStatistics = choice;
        manager.SetSettings(settings);
        return product.value("sendStatistics").toString();
    };
    EXPECT_EQ(stored(0), "");
    EXPECT_FALSE(manager.StatisticsKeyExists());
    EXPECT_EQ(stored(1), "false");
    EXPECT_EQ(stored(2), "true");
    EXPECT_EQ(stored(0), "true");
    EXPECT_TRUE(manager.StatisticsKeyExists());
}

TEST_F(SettingsManagerTest, BrowserIsTheFirstMarkerInKeyOrder)
{
    EXPECT_EQ(SettingsManager::GetBrowserFromFilename("QuillaxSetupYandSetupS.exe"), "safari.exe");
    EXPECT_EQ(SettingsManager::GetBrowserFromFilename("QuillaxSetupE.exe"), "msedge.exe");
    EXPECT_EQ(SettingsManager::GetBrowserFromFilename("quillaxsetupe.exe"), "");
    EXPECT_EQ(SettingsManager::GetBrowserFromFilename(""), "");
}

TEST_F(SettingsManagerTest, CheckResultsAreStoredAlsoWhenEmpty)
{
    manager.DisablePlugins({"one", "t\xC3\xA9st"});
    manager.DisableCodecs("h264:NVENC");
    manager.SetKilledByInstaller(true);
    EXPECT_EQ(product.value("BrokenPlugins").toString(), QString::fromUtf8("one,t\xC3\xA9st"));
    EXPECT_EQ(product.value("BrokenCodecs").toString(), "h264:NVENC");
    EXPECT_EQ(product.value("KilledDuringUpdateByInstaller").toString(), "true");

    manager.DisablePlugins({});
    manager.DisableCodecs("");
    EXPECT_TRUE(product.contains("BrokenPlugins"));
    EXPECT_TRUE(product.contains("BrokenCodecs"));
    EXPECT_EQ(product.value("BrokenPlugins").toString(), "");
    EXPECT_EQ(product.value("BrokenCodecs").toString(), "");
}

TEST_F(SettingsManagerTest, WebIdIsTheUsersUnlessThatIsUndefined)
{
    EXPECT_EQ(manager.GetWebUID(), "");
    product.setValue("WEBUID", "of-product");
    EXPECT_EQ(manager.GetWebUID(), "of-product");
    manager.SetUserInfoSettings({"UNDEFINED"});
    EXPECT_EQ(manager.GetWebUID(), "of-product");
    manager.SetUserInfoSettings({"of-user"});
    manager.SetUserInfoSettings({""});
    EXPECT_EQ(manager.GetWebUID(), "of-user");
    EXPECT_EQ(Values("User"), QStringList("WEBUID=of-user"));
}

TEST_F(SettingsManagerTest, AdditionalDataGoesIntoItsGroup)
{
    manager.WriteAdditionalData({"A", "b", 7});
    manager.WriteAdditionalData({"", "plain", "text"});
    EXPECT_EQ(Values("Quillax24\\A"), QStringList("b=7"));
    EXPECT_EQ(Values("Quillax24"), QStringList("plain=text"));
}

TEST_F(SettingsManagerTest, RemovingTheInstallationKeepsThePersonsChoices)
{
    InstallationSettings settings = Settings();
    settings.installerName = "QuillaxSetupC.exe";
    manager.SetSettings(settings);
    manager.RemoveInstallerSettings();
    EXPECT_EQ(Values("Quillax24"),
        QStringList({"Browser=chrome.exe", "ExePath=/apps/Vorlan Quillax/quill.exe",
            "MainAppIpcId=quill", "ParentProductId=", "PartnerName.OVERRIDE=", "ProductId=quillax",
            "VersionByInstaller=24-5-1", "autoUpdate=true", "locale=de_DE"}));
}

TEST_F(SettingsManagerTest, RemovingAllLeavesTheEmptyKeyAndTheUserKey)
{
    manager.SetSettings(Settings());
    manager.SetUserInfoSettings({"of-user"});
    manager.WriteAdditionalData({"A/B", "c", 7});
    manager.RemoveAllSettings();
    EXPECT_EQ(Values("Quillax24"), QStringList());
    RegistrySettings company("HKEY_CURRENT_USER\\Software\\Vorlan");
    EXPECT_EQ(company.childGroups(), QStringList({"Quillax24", "User"}));
    EXPECT_EQ(product.childGroups(), QStringList());
    EXPECT_EQ(manager.GetWebUIDFromUserKey(), "of-user");
}

TEST_F(SettingsManagerTest, ScopesAreApart)
{
    SettingsManager ofMachine("Quillax24", "Vorlan", QSettings::SystemScope);
    ofMachine.SetSettings(Settings());
    EXPECT_EQ(ofMachine.GetLocale(), "de_DE");
    EXPECT_EQ(manager.GetLocale(), "");
    EXPECT_EQ(RegistrySettings("HKEY_LOCAL_MACHINE\\Software\\Vorlan\\Quillax24").value("locale"),
        "de_DE");
}

TEST_F(SettingsManagerTest, RegistryHelperGivesTheFirstPlaceThatHasTheValue)
{
    using Util::RegistryHelper;
    const RegistryHelper helper(
        {"Software\\Vorlan\\Test"}, RegistryHelper::AccessFlags(RegistryHelper::everywhere));
    EXPECT_EQ(helper.GetValue("Value"), "");
    RegistrySettings("HKEY_LOCAL_MACHINE\\Software\\Vorlan\\Test").setValue("Value", "machine");
    EXPECT_EQ(helper.GetValue("Value"), "machine");
    RegistrySettings("HKEY_CURRENT_USER\\Software\\Vorlan\\Test").setValue("Value", 42);
    EXPECT_EQ(helper.GetValue("Value"), "42");
    EXPECT_EQ(RegistryHelper({"Software\\Vorlan\\Test"}, RegistryHelper::LocalMachine64)
                  .GetValue("Value"),
        "machine");
}
