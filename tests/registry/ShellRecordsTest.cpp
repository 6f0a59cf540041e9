#include "registry/RegistrySettings.h"
#include "registry/SettingsManager.h"
#include "support/Machine.h"
#include "support/RegistryTree.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

constexpr auto user = QSettings::UserScope;
constexpr auto allUsers = QSettings::SystemScope;
constexpr char userRoot[] = "HKEY_CURRENT_USER";
constexpr char machineRoot[] = "HKEY_LOCAL_MACHINE";
constexpr char classes[] = "Software\\Classes";

class ShellRecordsTest : public testing::Test
{
protected:
    // The records below Microsoft's key, without empty keys.
    static QStringList CurrentVersion(const QString& subKey, const char* root = userRoot)
    {
        return RegistryTree(root, "Software\\Microsoft\\Windows\\CurrentVersion\\" + subKey)
            .filter(" = ");
    }

    Machine machine;
    const ExtensionAssociation video{
        "video", "quill.exe", {"-open", "%1"}, {".mp4", ".avi"}, false};
};

} // namespace

TEST_F(ShellRecordsTest, AppPathQuotesProgramAndArgumentsTogether)
{
    SettingsManager::AddAppPath("Vorlan Quillax", "C:\\Q\\", {"quill.exe", "text", ""}, user);
    SettingsManager::AddAppPath("Vorlan Quillax", "C:\\Q\\", {"tool.exe", "", "-a b"}, user);
    EXPECT_EQ(CurrentVersion("App Paths"),
        QStringList({"Vorlan Quillax\\quill.exe: @ = REG_SZ C:\\Q\\quill.exe",
            "Vorlan Quillax\\tool.exe: @ = REG_SZ \"C:\\Q\\tool.exe -a b\""}));

    SettingsManager::AddAppPath("Other", "C:\\O\\", {"o.exe", "", ""}, user);
    SettingsManager::RemoveAppPath("", user);
    SettingsManager::RemoveAppPath("Vorlan Quillax", user);
    EXPECT_EQ(CurrentVersion("App Paths"), QStringList("Other\\o.exe: @ = REG_SZ C:\\O\\o.exe"));
}

TEST_F(ShellRecordsTest, ProgIdsCarryIconAndCommand)
{
    SettingsManager::AddProgId(
        "P", "/q/quill.exe", AutoPlayAssociation{"play", "", {"%1\\"}, "", {}});
    SettingsManager::AddProgId("P", "/q/quill.exe", video);
    const QString icons = QDir::toNativeSeparators("/q/resources/extIcons/");
    EXPECT_EQ(RegistryTree(userRoot, classes).filter(" = "),
        QStringList({
            "P.play\\DefaultIcon: @ = REG_SZ /q/quill.exe",
            "P.play\\shell: @ = REG_SZ ",
            "P.play\\shell\\open\\command: @ = REG_SZ \"/q/quill.exe\" \"%1\\\"",
            "P.video.avi\\DefaultIcon: @ = REG_SZ " + icons + ".avi.ico,0",
            "P.video.avi\\shell: @ = REG_SZ ",
            "P.video.avi\\shell\\open\\command: @ = REG_SZ \"/q/quill.exe\" \"-open\" \"%1\"",
            "P.video.mp4\\DefaultIcon: @ = REG_SZ " + icons + ".mp4.ico,0",
            "P.video.mp4\\shell: @ = REG_SZ ",
            "P.video.mp4\\shell\\open\\command: @ = REG_SZ \"/q/quill.exe\" \"-open\" \"%1\"",
        }));

    SettingsManager::RemoveProgId("P", video);
    SettingsManager::RemoveProgId("P", AutoPlayAssociation{"play", "", {}, "", {}});
    EXPECT_EQ(RegistryTree(userRoot, classes), QStringList());
}

TEST_F(ShellRecordsTest, AssociationsAreCandidatesOrDefaults)
{
    ExtensionAssociation byDefault = video;
    byDefault.makeDefault = true;
    SettingsManager::AddAssociations("P", video, user);
    SettingsManager::AddAssociations("P", byDefault, allUsers);
    EXPECT_EQ(RegistryTree(userRoot, classes).filter(" = "),
        QStringList({".avi\\OpenWithProgids: P.video.avi = REG_SZ ",
            ".mp4\\OpenWithProgids: P.video.mp4 = REG_SZ "}));
    EXPECT_EQ(RegistryTree(machineRoot, classes).filter(" = "),
        QStringList({".avi: @ = REG_SZ P.video.avi", ".mp4: @ = REG_SZ P.video.mp4"}));

    RegistrySettings key("HKEY_CURRENT_USER\\Software\\Classes");
    key.setValue("Other.video.avi/shell/open/command/Default", "\"C:\\O\\other.exe\" \"%1\"");
    key.setValue(".avi/OpenWithProgids/Other.video.avi", "");
    key.setValue(".avi/OpenWithProgids/VLC.avi", "");
    key.setValue(".mp4/Default", "VLC.mp4");
    key.setValue("Bare.video.mp4/DefaultIcon/Default", "other.ico");
    key.setValue(".mp4/OpenWithProgids/Bare.video.mp4", "");
    key.setValue(".mp4/OpenWithProgids/Wide.video.mp4", "");
    RegistrySettings ofAll("HKEY_LOCAL_MACHINE\\Software\\Classes");
    ofAll.setValue("Wide.video.mp4/shell/open/command/Default", "\"C:\\O\\other.exe\" \"%1\"");
    SettingsManager::RemoveAssociations(video, user);
    SettingsManager::RemoveAssociations(byDefault, allUsers);
    EXPECT_EQ(RegistryTree(userRoot, classes).filter(" = "),
        QStringList({".avi\\OpenWithProgids: Other.video.avi = REG_SZ ",
            ".avi\\OpenWithProgids: VLC.avi = REG_SZ ", ".mp4: @ = REG_SZ VLC.mp4",
            ".mp4\\OpenWithProgids: Bare.video.mp4 = REG_SZ ",
            ".mp4\\OpenWithProgids: Wide.video.mp4 = REG_SZ ",
            "Bare.video.mp4\\DefaultIcon: @ = REG_SZ other.ico",
            "Other.video.avi\\shell\\open\\command: @ = REG_SZ \"C:\\O\\other.exe\" \"%1\""}));
    ofAll.remove("Wide.video.mp4");
    EXPECT_EQ(RegistryTree(machineRoot, classes).filter(" = "), QStringList());
}

TEST_F(ShellRecordsTest, AutoplayHandlerKeepsThoseOfOthers)
{
    const AutoPlayAssociation play{
        "play", "quill.exe", {"%1"}, "Convert Video and Audio", {"OnDVD", "OnCD"}};
    SettingsManager::AddAutoplayHandlers("P", "C:\\Q\\", "Vorlan", play, user);
    const QString key = "Explorer\\AutoplayHandlers";
    EXPECT_EQ(
        CurrentVersion(key), QStringList({
                                 "EventHandlers\\OnCD: P.play = REG_SZ ",
                                 "EventHandlers\\OnDVD: P.play = REG_SZ ",
                                 "Handlers\\P.play: Action = REG_SZ Convert Video and Audio",
                                 "Handlers\\P.play: DefaultIcon = REG_SZ \"C:\\Q\\quill.exe\",0",
                                 "Handlers\\P.play: InvokeProgId = REG_SZ P.play",
                                 "Handlers\\P.play: InvokeVerb = REG_SZ play",
                                 "Handlers\\P.play: Provider = REG_SZ Vorlan",
                             }));

    const AutoPlayAssociation other{"other", "o.exe", {}, "Play", {"OnCD"}};
    SettingsManager::AddAutoplayHandlers("O", "C:\\O\\", "Other", other, user);
    SettingsManager::RemoveAutoplayHandlers("P", play, user);
    const QStringList left = CurrentVersion(key);
    EXPECT_EQ(left.filter("P.play"), QStringList());
    EXPECT_TRUE(left.contains("EventHandlers\\OnCD: O.other = REG_SZ "));
}

TEST_F(ShellRecordsTest, ProtocolIsNamedWithoutSpaces)
{
    SettingsManager::AddCustomProtocol("quil lax", "Helper", "C:\\Q R\\", user);
    EXPECT_EQ(RegistryTree(userRoot, classes).filter(" = "),
        QStringList({"quillax: URL Protocol = REG_SZ ",
            "quillax\\DefaultIcon: @ = REG_SZ C:\\Q R\\Helper.exe,0",
            "quillax\\shell\\open\\command: @ = REG_SZ \"C:\\Q R\\Helper.exe\" \"%1\""}));

    SettingsManager::RemoveCustomProtocol("", user);
    EXPECT_EQ(RegistryTree(userRoot, classes).filter(" = ").size(), 3);
    SettingsManager::RemoveCustomProtocol("quil lax", user);
    EXPECT_EQ(RegistryTree(userRoot, classes), QStringList());
}

TEST_F(ShellRecordsTest, ContextMenuVerbOfAnotherProgramStays)
{
    const QStringList extensions{".avi", ".mp4"};
    const QString program = "C:/Q/quill.exe";
    SettingsManager::AddToContextMenu("Convert to", program, {}, user);
    EXPECT_EQ(machine.Log(), QStringList());
    SettingsManager::AddToContextMenu("", program, extensions, user);
    SettingsManager::AddToContextMenu("Convert to", program, extensions, user);
    const QString key = QString(classes) + "\\SystemFileAssociations";
    const QString file =
        "\"\\\\HKEY_CURRENT_USER\\\\Software\\\\Classes\\\\SystemFileAssociations\\\\\"";
    EXPECT_EQ(
        machine.Log(), QStringList({"Writing  " + file, "Create key  \".avi/Shell/Convert to/\"",
                           "Create key  \".mp4/Shell/Convert to/\""}));
    EXPECT_EQ(RegistryTree(userRoot, key).filter(" = "),
        QStringList({
            ".avi\\Shell\\Convert to: Icon = REG_SZ C:/Q/quill.exe",
            ".avi\\Shell\\Convert to\\Command: @ = REG_SZ \"C:/Q/quill.exe\" \"%1\"",
            ".mp4\\Shell\\Convert to: Icon = REG_SZ C:/Q/quill.exe",
            ".mp4\\Shell\\Convert to\\Command: @ = REG_SZ \"C:/Q/quill.exe\" \"%1\"",
        }));

    RegistrySettings("HKEY_CURRENT_USER\\" + key)
        .setValue(".mp4/Shell/Convert to/Command/Default", "\"C:\\Other\\o.exe\" \"%1\"");
    SettingsManager::RemoveContextMenu("", program, extensions, user);
    SettingsManager::RemoveContextMenu("Convert to", "C:\\Q\\quill.exe", extensions, user);
    EXPECT_EQ(machine.Log().mid(3),
        QStringList({"Removing  " + file, "Remove key  \".avi/Shell/Convert to\""}));
    EXPECT_EQ(RegistryTree(userRoot, key).filter(" = "),
        QStringList({".mp4\\Shell\\Convert to: Icon = REG_SZ C:/Q/quill.exe",
            ".mp4\\Shell\\Convert to\\Command: @ = REG_SZ \"C:\\Other\\o.exe\" \"%1\""}));
}

TEST_F(ShellRecordsTest, VerbWithoutCommandStaysUnlessNothingIsLeftOfIt)
{
    const QString key = QString("HKEY_CURRENT_USER\\") + classes + "\\SystemFileAssociations";
    const QString icon = "/Shell/Convert to/Icon";
    RegistrySettings(key).setValue(".avi" + icon, "C:/Q/quill.exe");
    RegistrySettings(key).setValue(".mp4" + icon, "C:/Q/quill.exe");
    RegistrySettings(key).remove(".mp4" + icon);
    SettingsManager::RemoveContextMenu("Convert to", "C:\\Q\\quill.exe", {".avi", ".mp4"}, user);
    EXPECT_TRUE(RegistrySettings(key).contains(".avi" + icon));
    RegistrySettings shell(key + "\\.mp4\\Shell");
    EXPECT_EQ(shell.childGroups(), QStringList());
}

TEST_F(ShellRecordsTest, RunValueThatPointsElsewhereStays)
{
    SettingsManager::AddToAutoRun("Quill", "C:\\Q\\quill.exe", "-min", allUsers);
    SettingsManager::AddToAutoRun("Plain", "C:\\Q\\quill.exe", "", allUsers);
    EXPECT_EQ(machine.Log(), QStringList({"autorun= \"Quill\" \"C:\\\\Q\\\\quill.exe\" \"-min\"",
                                 "autorun= \"Plain\" \"C:\\\\Q\\\\quill.exe\" \"\""}));
    EXPECT_EQ(
        CurrentVersion("Run", machineRoot), QStringList({": Plain = REG_SZ \"C:\\Q\\quill.exe\"",
                                                ": Quill = REG_SZ \"C:\\Q\\quill.exe\" -min"}));

    SettingsManager::RemoveFromAutoRun("Quill", "C:\\Other\\quill.exe", allUsers);
    EXPECT_EQ(CurrentVersion("Run", machineRoot).size(), 2);
    SettingsManager::RemoveFromAutoRun("Quill", "C:\\Q\\quill.exe", allUsers);
    EXPECT_EQ(
        CurrentVersion("Run", machineRoot), QStringList(": Plain = REG_SZ \"C:\\Q\\quill.exe\""));
}

TEST_F(ShellRecordsTest, UninstallEntryHoldsItsNineValues)
{
    SettingsManager::AddUninstaller(
        {"Vorlan Quillax", "24.5.1", "20241121", "Vorlan", "de_DE", 1048576}, "C:\\Q\\",
        "uninst.exe", "quill.exe", user);
    EXPECT_EQ(CurrentVersion("Uninstall"),
        QStringList({
            "Vorlan Quillax: DisplayIcon = REG_SZ \"C:\\Q\\quill.exe\",0",
            "Vorlan Quillax: DisplayName = REG_SZ Vorlan Quillax",
            "Vorlan Quillax: DisplayVersion = REG_SZ 24.5.1",
            "Vorlan Quillax: EstimatedSize = REG_DWORD 1024",
            "Vorlan Quillax: InstallDate = REG_SZ 20241121",
            "Vorlan Quillax: InstallLocation = REG_SZ C:\\Q\\",
            "Vorlan Quillax: Language = REG_SZ de_DE",
            "Vorlan Quillax: Publisher = REG_SZ Vorlan",
            "Vorlan Quillax: UninstallString = REG_SZ \"C:\\Q\\uninst.exe\"",
        }));
    EXPECT_EQ(SettingsManager::GetUninstallerPath("Vorlan Quillax"), "C:\\Q\\uninst.exe");
    EXPECT_EQ(machine.Log(), QStringList("UninstallerPath= \"C:\\\\Q\\\\uninst.exe\""));

    SettingsManager::RemoveUninstaller("", user);
    EXPECT_EQ(CurrentVersion("Uninstall").size(), 9);
    SettingsManager::RemoveUninstaller("Vorlan Quillax", user);
    EXPECT_EQ(CurrentVersion("Uninstall"), QStringList());
    EXPECT_EQ(SettingsManager::GetUninstallerPath("Vorlan Quillax"), "");
}

TEST_F(ShellRecordsTest, UninstallerIsLookedUpForTheUserThenForAll)
{
    const QString key = "\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Q";
    RegistrySettings ofAll("HKEY_LOCAL_MACHINE" + key);
    ofAll.setValue("UninstallString", "C:\\All Users\\uninst.exe");
    ofAll.setValue("UseUAC", "true");
    EXPECT_EQ(SettingsManager::GetUninstallerPath("Q"), "C:\\All Users\\uninst.exe");
    EXPECT_TRUE(SettingsManager::IsUninstallerUACNeeded("Q"));

    RegistrySettings ofUser("HKEY_CURRENT_USER" + key);
    ofUser.setValue("UseUAC", "false"); // an entry without an uninstaller does not count
    EXPECT_TRUE(SettingsManager::IsUninstallerUACNeeded("Q"));
    ofUser.setValue("UninstallString", "\"C:\\User\\uninst.exe\"");
    EXPECT_EQ(SettingsManager::GetUninstallerPath("Q"), "C:\\User\\uninst.exe");
    for (const QVariant& value : {QVariant("True"), QVariant(1), QVariant("")})
    {
        ofUser.setValue("UseUAC", value);
        EXPECT_FALSE(SettingsManager::IsUninstallerUACNeeded("Q"))
            << value.toString().toStdString();
    }
}

TEST_F(ShellRecordsTest, ProductIsFoundByItsExecutableInEveryList)
{
    const auto addEntry = [](const QString& list, const QString& name, const QString& publisher)
    {
        RegistrySettings entry(list + "\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + name);
        entry.setValue("Publisher", publisher);
        entry.setValue("DisplayIcon", "\"C:\\X\\quill.exe\",0");
    };
    const auto find = [] { return SettingsManager::GetProductNameByExecutableName("quill.exe"); };
    addEntry("HKEY_CURRENT_USER\\Software", "A Foreign One", "Other Ltd.");
    EXPECT_EQ(find(), "");
    for (const char* root : {userRoot, machineRoot})
        EXPECT_EQ(RegistryTree(root, "Software\\WOW6432Node"), QStringList()) << root;
    addEntry("HKEY_LOCAL_MACHINE\\Software\\WOW6432Node", "Of 32 Bits", "Vorlan");
    EXPECT_EQ(find(), "Of 32 Bits");
    addEntry("HKEY_LOCAL_MACHINE\\Software", "Of All", "The Vorlan Company");
    EXPECT_EQ(find(), "Of All");
    addEntry("HKEY_CURRENT_USER\\Software", "Of User", "Vorlan");
    EXPECT_EQ(find(), "Of User");
    EXPECT_EQ(SettingsManager::GetProductNameByExecutableName("other.exe"), "");
}

TEST_F(ShellRecordsTest, ValuesOfOtherTypesAreNotTakenForOurs)
{
    RegistrySettings run("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
    run.setValue("Quill", 7);
    SettingsManager::RemoveFromAutoRun("Quill", "C:\\Q\\quill.exe", user);
    EXPECT_EQ(run.value("Quill").toInt(), 7);

    RegistrySettings verbs("HKEY_CURRENT_USER\\Software\\Classes\\SystemFileAssociations");
    verbs.setValue(".avi/Shell/Convert to/Command/Default", QStringList({"a", "b"}));
    SettingsManager::RemoveContextMenu("Convert to", "C:\\Q\\quill.exe", {".avi"}, user);
    EXPECT_TRUE(verbs.contains(".avi/Shell/Convert to/Command/Default"));
    SettingsManager::AddToContextMenu("Convert to", "C:\\Q\\quill.exe", {".avi"}, user);
    EXPECT_EQ(verbs.value(".avi/Shell/Convert to/Command/Default").toString(),
        "\"C:\\Q\\quill.exe\" \"%1\"");
}
