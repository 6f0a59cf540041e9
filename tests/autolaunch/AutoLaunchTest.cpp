#include "autolaunch/AutoLauncherApp.h"
#include "autolaunch/CreateAutoLauncher.h"
#include "autolaunch/StartupRegistration.h"
#include "registry/RegistrySettings.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

constexpr char runPath[] = "\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class AutoLaunchTest : public testing::Test
{
protected:
    AutoLaunchTest() { run.setValue("Foreign program", "\"C:\\f.exe\""); }

    // The entries of this maker in the Run key.
    QStringList Entries() const
    {
        QStringList names = run.childKeys();
        names.removeAll("Foreign program");
        return names;
    }

    void Add(const AutoLaunchProduct& product, const std::string& appId)
    {
        AddAppToStartup(QSettings::UserScope, {appId, "C:/Q/helper.exe", "-min"}, product);
    }
    bool IsIn(const AutoLaunchProduct& product, const std::string& appId) const
    {
        return IsAppInStartup(QSettings::UserScope, {appId, "C:/Q/helper.exe", "-min"}, product);
    }

    Machine machine;
    RegistrySettings run{QString("HKEY_CURRENT_USER") + runPath};
    const AutoLaunchProduct studio{"vorlan", "snapgrabstudio", "24", "5.1"};
};

} // namespace

TEST_F(AutoLaunchTest, IdsReadBackAsTheyWereMade)
{
    const auto made =
        AutoLauncherApp::FromParts("vorlan", "snap-tape_se", "SnapGrab", "24", "5", "1");
    EXPECT_EQ(made.id, "vorlan_snap-tape_se_24.5.1_SnapGrab");
    const auto read = AutoLauncherApp::FromId(made.id);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->company, "vorlan");
    EXPECT_EQ(read->product, "snap-tape_se");
    EXPECT_EQ(read->app, "SnapGrab");
    EXPECT_EQ(read->VersionValue(), (24 * 256 + 5) * 256 + 1);
    for (const char* id : {"", "OneDrive", "vorlan_quillax_24.5.1_", "vorlan_quillax_24.5.12_app",
             "vorlan_quillax_99999999999.5.1_app", "1_quillax_24.5.1_app"})
        EXPECT_FALSE(AutoLauncherApp::FromId(id).has_value()) << id;
    EXPECT_THROW(AutoLauncherApp::FromParts("a", "b", "c", "x", "1", "2"), std::runtime_error);
}

TEST_F(AutoLaunchTest, RunKeyHoldsQuotedPathAndPlainArguments)
{
    const auto launcher = CreateAutoLauncher(QSettings::UserScope, 0);
    EXPECT_TRUE(launcher->Register("entry", "C:/A/b.exe", {"-x", "y/z"}));
    EXPECT_EQ(run.value("entry").toString(), "\"C:\\A\\b.exe\" -x y/z");
    EXPECT_TRUE(launcher->Register("entry", "C:/A/b.exe", {""}));
    EXPECT_EQ(run.value("entry").toString(), "\"C:\\A\\b.exe\" ");
    EXPECT_TRUE(launcher->IsRegistered("entry"));
    EXPECT_FALSE(launcher->IsRegistered("Entry"));
    EXPECT_FALSE(CreateAutoLauncher(QSettings::SystemScope, 7)->IsRegistered("entry"));
    EXPECT_TRUE(launcher->Unregister("entry"));
    EXPECT_FALSE(launcher->Unregister("entry"));
    EXPECT_THROW(launcher->Register("entry", "\xFF", {}), std::range_error);
}

TEST_F(AutoLaunchTest, StrongestProductOwnsTheEntry)
{
    const AutoLaunchProduct deck{"vorlan", "mediadeck", "30", "0.0"};
    Add(deck, "SnapGrab");
    EXPECT_EQ(Entries(), QStringList("vorlan_mediadeck_30.0.0_SnapGrab"));
    EXPECT_FALSE(IsIn(studio, "SnapGrab"));
    Add(studio, "SnapGrab");
    EXPECT_EQ(Entries(), QStringList("vorlan_snapgrabstudio_24.5.1_SnapGrab"));
    EXPECT_EQ(run.value(Entries().first()).toString(), "\"C:\\Q\\helper.exe\" -min");
    Add(deck, "SnapGrab");
    EXPECT_EQ(Entries(), QStringList("vorlan_snapgrabstudio_24.5.1_SnapGrab"));
    EXPECT_TRUE(IsIn(deck, "SnapGrab"));

    Add(studio, "SnapTape-Helper");
    EXPECT_EQ(Entries().size(), 2);
}

TEST_F(AutoLaunchTest, NewestVersionOfAProductOwnsTheEntry)
{
    const auto version = [](const char* minor) {
        return AutoLaunchProduct{"vorlan", "snapgrabstudio", "24", minor};
    };
    Add(version("5.0"), "SnapGrab");
    EXPECT_FALSE(IsIn(studio, "SnapGrab"));
    Add(studio, "SnapGrab");
    EXPECT_EQ(Entries(), QStringList("vorlan_snapgrabstudio_24.5.1_SnapGrab"));
    Add(version("6.0"), "SnapGrab");
    Add(studio, "SnapGrab");
    EXPECT_EQ(Entries(), QStringList("vorlan_snapgrabstudio_24.6.0_SnapGrab"));
    EXPECT_TRUE(IsIn(studio, "SnapGrab"));

    RemoveAppFromStartup(QSettings::UserScope, {"SnapGrab", "", ""}, studio);
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_TRUE(run.contains("Foreign program"));
    EXPECT_EQ(machine.Log(), QStringList());
}

TEST_F(AutoLaunchTest, EntryOfAnotherProductStaysWhenOnesOwnIsRemoved)
{
    Add(studio, "SnapGrab");
    RemoveAppFromStartup(
        QSettings::UserScope, {"SnapGrab", "", ""}, {"vorlan", "mediadeck", "24", "5.1"});
    EXPECT_EQ(Entries(), QStringList("vorlan_snapgrabstudio_24.5.1_SnapGrab"));
}

TEST_F(AutoLaunchTest, ProductWithoutACompanionIsNeverFound)
{
    const AutoLaunchProduct quillax{"vorlan", "quillax", "24", "5.1"};
    EXPECT_FALSE(IsIn(quillax, ""));
    Add(quillax, "");
    EXPECT_EQ(Entries(), QStringList("vorlan_quillax_24.5.1_"));
    EXPECT_FALSE(IsIn(quillax, ""));
    AddAppToStartup(QSettings::UserScope, {"", "", ""}, quillax);
    EXPECT_EQ(machine.Log(), QStringList());
}

TEST_F(AutoLaunchTest, FailuresAreLinesInTheLog)
{
    const AutoLaunchProduct wrong{"vorlan", "quillax", "24", "5.1.2"};
    const AutoLaunchApp app{"helper", "C:/Q/helper.exe", ""};
    AddAppToStartup(QSettings::UserScope, app, wrong);
    EXPECT_FALSE(IsAppInStartup(QSettings::UserScope, app, wrong));
    RemoveAppFromStartup(QSettings::UserScope, app, wrong);
    const QString error = "Error parsing version ( 5.1.2 )";
    EXPECT_EQ(machine.Log(),
        QStringList({"Failed to add  \"C:/Q/helper.exe\"  to startup. Error:  " + error,
            "Failed to check if  \"C:/Q/helper.exe\"  is in startup. Error:  " + error,
            "Failed to remove  \"C:/Q/helper.exe\"  from startup. Error:  " + error}));

    const AutoLaunchProduct foreign{"vorlan", "quillax", "24", "5.1"};
    Add({"vorlan", "helper", "24", "5.1"}, "helper");
    Add(foreign, "helper");
    EXPECT_EQ(machine.Log().last(),
        "Failed to add  \"C:/Q/helper.exe\"  to startup. Error:  Not exist product name for auto "
        "launcher appId: (current: vorlan_quillax_24.5.1_helper exist: "
        "vorlan_helper_24.5.1_helper )");
}

TEST_F(AutoLaunchTest, ForeignEntriesAreOnlyReadThrough)
{
    for (int i = 0; i < 10000; ++i)
        run.setValue(QString("Foreign program of some name %1").arg(i), "\"C:\\f.exe\"");
    Add(studio, "SnapGrab");
    EXPECT_TRUE(IsIn(studio, "SnapGrab"));
    EXPECT_TRUE(run.contains("vorlan_snapgrabstudio_24.5.1_SnapGrab"));
}
