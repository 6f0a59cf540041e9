#include "MachineAccess.h"
#include "ProtectedTempFolder.h"
#include "platform/System.h"
#include "registry/RegistrySettings.h"
#include "support/ChildProgram.h"
#include "support/FolderLink.h"
#include "support/InstalledProduct.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Vorlan;

namespace
{

class UninstallTest : public InstalledProduct
{
protected:
    // What runs with administrator rights have left in their temporary folders. The folders
    // themselves stay under Wine, whose command interpreter keeps its script open.
    static QStringList ProtectedFiles()
    {
        return QSysInfo::kernelType() == "winnt"
                   ? ListTree(FrontEnd::SystemTemp::Parent())
                         .filter(QRegularExpression("^VorlanQuillaxSetup-.*[^/]$"))
                   : QStringList();
    }
};

// The records that an uninstallation leaves, besides the program's own values.
const QStringList keptRecords = {
    "Vorlan\\Quillax24: BrokenCodecs = REG_SZ ",
    "Vorlan\\Quillax24: BrokenPlugins = REG_SZ ",
    "Vorlan\\Quillax24: ExePath = REG_SZ ",
    "Vorlan\\Quillax24: KilledDuringUpdateByInstaller = REG_SZ true",
    "Vorlan\\Quillax24: MainAppIpcId = REG_SZ quill",
    "Vorlan\\Quillax24: ParentProductId = REG_SZ ",
    "Vorlan\\Quillax24: PartnerName.OVERRIDE = REG_SZ ",
    "Vorlan\\Quillax24: ProductId = REG_SZ quillax",
    "Vorlan\\Quillax24: VersionByInstaller = REG_SZ 24-5-1",
    "Vorlan\\Quillax24: autoUpdate = REG_SZ true",
    "Vorlan\\Quillax24: locale = REG_SZ en_US",
};

} // namespace

TEST_F(UninstallTest, AProgramThatUsesTheFilesIsNamedOrClosedWhenThatIsAskedFor)
{
    InstallCurrent();
    ChildProgram player(product + "/libs/player.exe", "wait");
    player.Start();
    const auto refused = Uninstall({});
    EXPECT_EQ(refused.exitCode, 32);
    EXPECT_TRUE(refused.errors.contains(QString("player.exe (%1)").arg(player.Id())))
        << refused.errors.toStdString();
    EXPECT_EQ(Links(), allLinks);
    EXPECT_TRUE(QFile::exists(product + "/quill.exe") && player.IsRunning());
    EXPECT_EQ(Uninstall({"/CLOSEAPPS"}).exitCode, 0);
    EXPECT_TRUE(player.HasEnded());
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(UninstallTest, ANewVersionReplacesTheOldOneAndLeavesWhatIsNotOfTheProgram)
{
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old");
    EXPECT_EQ(Entry(), QStringList("Vorlan Quillax: DisplayVersion = REG_SZ 24.4.0"));
    RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    key.setValue("PreferredBrowser", "of-the-person");
    key.sync();
    WriteFile(product + "/libgallium_wgl.dll", "graphics");
    for (const char* file : {"/my video.avi", "/libs/plug-in.dll", "/my/film.avi", "/new.txt"})
        WriteFile(product + file, "of the person");
    QProcess quill;
    quill.start(product + "/quill.exe", {"wait"});
    ASSERT_TRUE(quill.waitForStarted());

    Install(FRONTEND_FOLDER, "new", {"/LOG=" + machine.Path("run.log")});
    EXPECT_TRUE(quill.waitForFinished(timeLimitMs));
    const QString log = ReadFile(machine.Path("run.log"));
    EXPECT_TRUE(log.contains("uninst.exe\" /S /IGNORE_MUTEX -> 1")) << log.toStdString();
    EXPECT_FALSE(log.contains("Still exists:")) << "the former folder goes at once";
    EXPECT_EQ(Files(), QStringList({"InstallerMessage.vbs", "Vorlan Quillax.url",
                           "libgallium_wgl.dll", "libs/codec.dll", "libs/plug-in.dll",
                           "my video.avi", "my/film.avi", "new.txt", "quill.exe", "uninst.exe"}));
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec of new");
    EXPECT_EQ(ReadFile(product + "/libgallium_wgl.dll"), "graphics");
    EXPECT_EQ(Entry(), QStringList("Vorlan Quillax: DisplayVersion = REG_SZ 24.5.1"));
    EXPECT_EQ(key.value("PreferredBrowser").toString(), "of-the-person");
    EXPECT_EQ(Links(), allLinks);
    // The new version has a file of this name; the person's is beside the folder, and named.
    const QString moved = product + ".uninst.kept/new.txt";
    EXPECT_EQ(ReadFile(moved), "of the person");
    EXPECT_TRUE(log.contains(moved)) << log.toStdString();

    // Everything of the program goes; the rest is where it was.
    QFile::remove(moved);
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_EQ(LeftBesideProduct(), QStringList("Vorlan Quillax"));
    EXPECT_EQ(ListTree(product),
        QStringList({"libs/", "libs/plug-in.dll", "my video.avi", "my/", "my/film.avi"}));
}

// The list of an older version is missing: only what the new payload has, too, is known to be ours.
TEST_F(UninstallTest, AVersionWithoutAListIsReplacedAndItsOtherFilesStay)
{
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old");
    ASSERT_TRUE(QDir(product + "/uninst.data").removeRecursively());
    InstallCurrent();
    EXPECT_EQ(Files(), QStringList({"InstallerMessage.vbs", "Vorlan Quillax.url", "libs/codec.dll",
                           "new.txt", "old.txt", "quill.exe", "uninst.exe"}));
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec of new");
}

TEST_F(UninstallTest, AnUpdateGoesWhereTheProductIsWithWhatWasChosen)
{
    setup.AddProgram(translation);
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old",
        {"/D=" + machine.Path("My Media"), "/CONTEXTMENU", "/NOSHORTCUTS"});
    const QString chosen = machine.Path("My Media/Vorlan Quillax");
    const QString key = "Software\\Classes\\SystemFileAssociations";
    Install(FRONTEND_FOLDER, "new", {});
    EXPECT_FALSE(QDir(product).exists());
    EXPECT_EQ(ReadFile(chosen + "/libs/codec.dll"), "codec of new");
    EXPECT_EQ(RegistryTree("HKEY_CURRENT_USER", key).filter("Convert to\\Command: @").size(), 32);
    EXPECT_EQ(Links(), QStringList());

    // Another folder moves it; only the person's file stays in the former one.
    WriteFile(chosen + "/my video.avi", "of the person");
    Install(FRONTEND_FOLDER, "newer", {"/D=" + QFileInfo(product).path(), "/SHORTCUTS=yes"});
    EXPECT_EQ(LeftBeside(chosen), QStringList("Vorlan Quillax"));
    EXPECT_EQ(ListTree(machine.Path("My Media")),
        QStringList({"Vorlan Quillax/", "Vorlan Quillax/my video.avi"}));
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec of newer");
    EXPECT_EQ(RegistryTree("HKEY_CURRENT_USER", key).filter("Convert to\\Command: @").size(), 32);
    EXPECT_EQ(Links(), allLinks);
}

TEST_F(UninstallTest, AnInstallationForAllUsersIsUpdatedAsOneAndANewerOneIsNotReplacedUnasked)
{
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old", {"/ALLUSERS", "/NOSHORTCUTS"});
    EXPECT_FALSE(QDir(product).exists()) << "not in one user's folder";
    Install(FRONTEND_FOLDER, "new", {});
    const QString list = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Vorlan Quillax";
    const QStringList entry = RegistryTree("HKEY_LOCAL_MACHINE", list);
    EXPECT_EQ(entry.filter("DisplayVersion = REG_SZ 24.5.1").size(), 1);
    EXPECT_EQ(Entry(), QStringList());
    RegistrySettings key(QSettings::SystemScope, "Vorlan", "Quillax24");
    const QString folder = QDir::fromNativeSeparators(key.value("Path").toString());
    EXPECT_TRUE(folder.endsWith("/Program Files/Vorlan Quillax/")) << folder.toStdString();

    key.setValue("VersionByInstaller", "24-6-0");
    key.sync();
    const auto refused = setup.Start({"/S"});
    EXPECT_EQ(refused.exitCode, SetupRun::ShownExitCode(1638));
    EXPECT_TRUE(refused.errors.contains("24.6.0")) << refused.errors.toStdString();
    EXPECT_EQ(setup.Start({"/S", "/DOWNGRADE"}).exitCode, 0);
    EXPECT_EQ(setup.StartFrom(folder, "uninst.exe", {"/S", "/DELETESETTINGS"}).exitCode, 0);
    EXPECT_FALSE(QFile::exists(folder + "quill.exe"));
}

TEST_F(UninstallTest, FilesRecordsAndShortcutsAreRemovedAndTheChoicesKept)
{
    InstallCurrent();
    EXPECT_EQ(Files(), installedFiles);
    EXPECT_EQ(Links(), allLinks);
    WriteFile(machine.Path("outside/marker.txt"), "stays");
    MakeFolderLink(product + "/link", machine.Path("outside"));

    const auto result = Uninstall({});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_EQ(ListTree(machine.Path("outside")), QStringList("marker.txt"));
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(LeftBesideProduct(), QStringList("Vorlan Quillax"));
    EXPECT_EQ(ListTree(product).filter(QRegularExpression("^(?!link)")), QStringList());
    EXPECT_EQ(Links(), QStringList());
    EXPECT_EQ(Records(), keptRecords);
}

TEST_F(UninstallTest, OptionsOfTheInstallationTakeEffectAndAreRemoved)
{
    setup.AddProgram(translation);
    setup.AddArchiveContent(Product(FRONTEND_FOLDER, "new"));
    const auto installed = setup.Start({"/S", "/ALLUSERS", "/AUTOLAUNCH", "/CONTEXTMENU",
        "/NOSHORTCUTS", "/WEBUID=1234-abcd", "/D=" + QFileInfo(product).path()});
    ASSERT_EQ(installed.exitCode, 0) << installed.errors.toStdString();
    const QStringList records = RegistryTree("HKEY_LOCAL_MACHINE", "Software").filter(" = ");
    EXPECT_EQ(records.filter("\\Shell\\Convert to").size(), 2 * 32);
    EXPECT_EQ(records.filter("\\Shell\\Open with").size(), 2 * 32);
    EXPECT_EQ(records.filter("\\CurrentVersion\\Run: vorlan_quillax_24.5.1_ = ").size(), 1);
    EXPECT_TRUE(records.contains("Vorlan\\User: WEBUID = REG_SZ 1234-abcd"));
    EXPECT_EQ(Links(), QStringList());

    EXPECT_EQ(Uninstall({"/DELETESETTINGS"}).exitCode, 0);
    EXPECT_EQ(Records(),
        QStringList({"Microsoft\\Windows\\CurrentVersion\\Run: vorlan_quillax_24.5.1_ = REG_SZ \"" +
                         QString(product).replace('/', '\\') + "\\\" ",
            "Vorlan\\User: WEBUID = REG_SZ 1234-abcd"}));
}

TEST_F(UninstallTest, SettingsAreDeletedOnRequest)
{
    InstallCurrent();
    WriteFile(Platform::LogFolder() + "/old.log", "log");
    EXPECT_EQ(Uninstall({"/DELETESETTINGS"}).exitCode, 0);
    EXPECT_EQ(Records(), QStringList());
    EXPECT_FALSE(QDir(Platform::LogFolder()).exists());
    EXPECT_FALSE(QDir(product).exists());
}

TEST_F(UninstallTest, FilesInUseDoNotStopTheRemoval)
{
    InstallCurrent();
    QFile inUse(product + "/libs/codec.dll");
    QFile openLog(Platform::LogFolder() + "/open.log");
    QDir().mkpath(Platform::LogFolder());
    ASSERT_TRUE(inUse.open(QIODevice::ReadOnly) && openLog.open(QIODevice::WriteOnly));
    WriteFile(product + "/read-only.txt", "of the person");
    QFile::setPermissions(product + "/read-only.txt", QFile::ReadOwner);

    const auto result = Uninstall({"/DELETESETTINGS", "/LOG=" + machine.Path("run.log")});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    const bool stay = QSysInfo::kernelType() == "winnt";
    EXPECT_EQ(openLog.exists(), stay);
    const QString log = ReadFile(machine.Path("run.log"));
    EXPECT_EQ(log.contains("Failed to remove logs "), stay);
    QStringList left = {"read-only.txt"};
    if (stay)
        left = QStringList{
            "libs/", "libs/codec.dll", "read-only.txt", "uninst.data/", "uninst.data/placed.txt"};
    EXPECT_EQ(ListTree(product), left);
    for (const QString& file : left.filter(QRegularExpression("\\.dll$|only.txt$")))
        EXPECT_TRUE(log.contains("Stays in " + QDir::toNativeSeparators(product) + ": " + file));
    EXPECT_EQ(Records(), QStringList());
}

TEST_F(UninstallTest, WithoutTemporaryFolderAFullRemovalIsRefused)
{
    if (QSysInfo::kernelType() == "winnt")
        GTEST_SKIP() << "an administrator's temporary folder is the system's";
    InstallCurrent();
    WriteFile(setup.MachineFolder() + "/machine.ini", "rights=refused\n");
    ASSERT_TRUE(QDir(setup.TemporaryFolder()).removeRecursively());
    WriteFile(setup.TemporaryFolder(), "no folder");
    for (const QStringList& log : {QStringList(), QStringList("/LOG=" + machine.Path("run.log"))})
    {
        const auto result = Uninstall(log + QStringList("/REMOVEALL"));
        EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(1603));
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
        EXPECT_EQ(Files(), installedFiles);
    }
    EXPECT_EQ(Uninstall({"/LOG=" + machine.Path("run.log")}).exitCode, 0);
    QStringList left; // what runs, where a running program cannot be deleted
    if (QSysInfo::kernelType() == "winnt")
        left =
            QStringList{ENGINE_FILE_NAME, "uninst.data/", "uninst.data/placed.txt", "uninst.exe"};
    EXPECT_EQ(ListTree(product).filter(QRegularExpression("^(?!resources)")), left);
}

TEST_F(UninstallTest, FullRemovalDeletesTheFolderAndNoTargetsOfLinks)
{
    InstallCurrent();
    WriteFile(machine.Path("outside/marker.txt"), "stays");
    if (IsRemovalOfFoldersSafe())
    {
        MakeFolderLink(product + "/link to outside", machine.Path("outside"));
        MakeFolderLink(product + "/libs/link to outside", machine.Path("outside"));
    }
    WriteFile(QFileInfo(product).path() + "/neighbour.txt", "stays");
    WriteFile(product + "/my/film.avi", "of the person");
    const QStringList before = ProtectedFiles();
    EXPECT_EQ(Uninstall({"/REMOVEALL", "/LOG=" + machine.Path("run.log")}).exitCode, 0);
    EXPECT_FALSE(QDir(product).exists());
    EXPECT_EQ(LeftBesideProduct(), QStringList());
    const QDeadlineTimer deadline(timeLimitMs);
    while (ProtectedFiles() != before && !deadline.hasExpired())
        std::this_thread::yield();
    EXPECT_EQ(ProtectedFiles(), before) << "the scripts remove themselves";
    EXPECT_TRUE(ReadFile(machine.Path("run.log"))
                    .contains("Not of the program, removed with the folder: my/"));
    EXPECT_EQ(Records(), QStringList());
    EXPECT_EQ(ReadFile(machine.Path("outside/marker.txt")), "stays");
    EXPECT_EQ(ReadFile(QFileInfo(product).path() + "/neighbour.txt"), "stays");
}

TEST_F(UninstallTest, AFullRemovalOfAFolderAroundAHomeFolderIsRefusedBeforeTheRun)
{
    InstallCurrent();
    QDir().mkpath(product + "/home/me");
    for (const char* variable : {"HOME", "OneDrive"})
        setup.SetVariable(variable, QDir::toNativeSeparators(product + "/home/me"));
    const auto refused = Uninstall({"/REMOVEALL"});
    EXPECT_EQ(refused.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(refused.errors.contains("is a home folder: nothing was deleted"))
        << refused.errors.toStdString();
    EXPECT_EQ(Files(), installedFiles);
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_TRUE(QDir(product + "/home/me").exists());
}

// Another front end, which writes no list, has installed the product into the folder of another
// program.
TEST_F(UninstallTest, AnotherProgramInTheRegisteredFolderIsNotChanged)
{
    const QString foo = machine.Path("Foo");
    const ChildProgram itsUninstaller(foo + "/unins.exe", "clean");
    WriteFile(foo + "/foo.exe", "program");
    const QString entry =
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Foo";
    RegistrySettings(entry).setValue("UninstallString", '"' + foo + "/unins.exe\"");
    RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    key.setValue("Path", foo + QDir::separator());
    key.sync();

    InstallCurrent();
    EXPECT_FALSE(itsUninstaller.WasRun());
    EXPECT_EQ(Files(), installedFiles);

    // The uninstaller in the folder of the other program.
    for (const char* file : {"uninst.exe", ENGINE_FILE_NAME})
        ASSERT_TRUE(QFile::copy(product + '/' + file, foo + '/' + file));
    key.setValue("Path", foo + QDir::separator());
    key.sync();
    const auto refused = setup.StartFrom(foo, "uninst.exe", {"/S"});
    EXPECT_EQ(refused.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(refused.errors.contains("is not Vorlan Quillax")) << refused.errors.toStdString();
    EXPECT_TRUE(QFile::exists(foo + "/foo.exe"));

    // After its move to a folder of its own, the records that it removes are its own.
    key.setValue("Path", product + QDir::separator());
    key.sync();
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_FALSE(RegistrySettings(entry).value("UninstallString").toString().isEmpty());
    EXPECT_EQ(Entry(), QStringList());
    RegistrySettings(entry).remove(QString());
}

// The entry of the product's name leads to another program's folder: its uninstaller is run, but
// nothing is moved or deleted there.
TEST_F(UninstallTest, AnotherProgramInTheFolderOfTheFormerUninstallerIsNotChanged)
{
    const QString foo = machine.Path("Foo");
    const ChildProgram uninstaller(foo + "/unins.exe", "exit 0");
    WriteFile(foo + "/libs/codec.dll", "of another program");
    RegistrySettings entry("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                           "Uninstall\\Vorlan Quillax");
    entry.setValue("UninstallString", '"' + foo + "/unins.exe\"");
    entry.sync();
    Install(FRONTEND_FOLDER, "new", {"/LOG=" + machine.Path("run.log")});
    EXPECT_TRUE(uninstaller.WasRun());
    EXPECT_FALSE(ReadFile(machine.Path("run.log")).contains("kept in"));
    EXPECT_EQ(ReadFile(foo + "/libs/codec.dll"), "of another program");
    EXPECT_EQ(Files(), installedFiles);
}

TEST_F(UninstallTest, IsRefusedBecauseOfDependentPrograms)
{
    InstallCurrent();
    RegistrySettings plain(QSettings::UserScope, "Vorlan", "Foo1");
    plain.setValue("ParentProductId", "quillax");
    plain.setValue("ExePath", "C:\\Foo\\Foo.exe");
    RegistrySettings named(QSettings::SystemScope, "Vorlan", "Bar1");
    named.setValue("ParentProductId", "quillax");
    named.setValue("DisplayName_en_US", "The Bar");
    RegistrySettings(QSettings::UserScope, "Vorlan", "Other").setValue("ParentProductId", "baz");

    const auto result = Uninstall({});
    EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(1051));
    EXPECT_TRUE(result.errors.startsWith(
        "To uninstall Vorlan Quillax, first uninstall these programs:\n\n\tThe Bar\n\tFoo"))
        << result.errors.toStdString();
    EXPECT_EQ(Files(), installedFiles);
    EXPECT_EQ(Links(), allLinks);
}

TEST_F(UninstallTest, AFolderThatIsNotRegisteredIsNotChanged)
{
    InstallCurrent();
    const QString copy = machine.Path("copy");
    for (const char* file : {"uninst.exe", ENGINE_FILE_NAME})
    {
        QDir().mkpath(copy);
        ASSERT_TRUE(QFile::copy(product + '/' + file, copy + '/' + file));
    }
    WriteFile(copy + "/thesis.txt", "years of work");
    const auto elsewhere = setup.StartFrom(copy, "uninst.exe", {"/S"});
    EXPECT_EQ(elsewhere.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(elsewhere.errors.contains("nothing was deleted")) << elsewhere.errors.toStdString();

    // Without a registration, the folder must have the main program or the mark of a removal.
    RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24").remove("Path");
    EXPECT_EQ(setup.StartFrom(copy, "uninst.exe", {"/S"}).exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_EQ(ListTree(copy).filter("thesis.txt").size(), 1);
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_FALSE(QDir(product).exists());
}

TEST_F(UninstallTest, AnInterruptedRemovalCanBeRepeated)
{
    InstallCurrent();
    // The state after a killed process: a person's file is kept, some files and records are gone.
    WriteFile(product + "/uninst.kept/my video.avi", "of the person");
    QFile::remove(product + "/quill.exe");
    RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24").remove("Path");
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_EQ(LeftBesideProduct(), QStringList("Vorlan Quillax"));
    EXPECT_EQ(ListTree(product), QStringList("my video.avi"));
    EXPECT_EQ(Records(), keptRecords);
}

TEST_F(UninstallTest, ASecondSetupIsRefused)
{
    InstallCurrent();
    const FrontEnd::SetupLock running;
    ASSERT_TRUE(running.IsHeld());
    const auto refused = Uninstall({});
    EXPECT_EQ(refused.exitCode, SetupRun::ShownExitCode(1618));
    EXPECT_TRUE(refused.errors.contains("Another setup is running"))
        << refused.errors.toStdString();
    EXPECT_EQ(Files(), installedFiles);
    EXPECT_EQ(Uninstall({"/IGNORE_MUTEX"}).exitCode, 0);
}
