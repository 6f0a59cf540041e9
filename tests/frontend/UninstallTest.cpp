#include "MachineAccess.h"
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

TEST_F(UninstallTest, ANewVersionReplacesTheOldOne)
{
    // An older version is installed and used.
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old");
    EXPECT_EQ(Files(), QStringList({"InstallerMessage.vbs", "Vorlan Quillax.url", "libs/codec.dll",
                           "old.txt", "quill.exe", "uninst.exe"}));
    EXPECT_EQ(Entry(), QStringList("Vorlan Quillax: DisplayVersion = REG_SZ 24.4.0"));
    RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    key.setValue("Version", "24-4-0");
    key.setValue("PreferredBrowser", "of-the-person");
    WriteFile(product + "/libgallium_wgl.dll", "graphics");
    WriteFile(product + "/libs/plug-in.dll", "of the person");
    QProcess quill;
    quill.start(product + "/quill.exe", {"wait"});
    ASSERT_TRUE(quill.waitForStarted());

    // The new one is installed by this process, which can shorten the wait for the removal of the
    // old folder.
    const QString setupName = "setup.exe";
    InstallerMediator mediator({setupName, false, true, QSettings::UserScope, false});
    EXPECT_TRUE(mediator.GetSettings().isNewerVersion);
    MediatorAccess access{mediator};
    access.SkipWaits();
    WriteFile(machine.Path("new.7z"), Product(FRONTEND_FOLDER, "new"));
    access.OpenArchive(machine.Path("new.7z"));
    QDir::setCurrent(QCoreApplication::applicationDirPath()); // where OpenGL libraries are reserved
    SignalLog calls(mediator);
    mediator.StartInstallation();
    calls.WaitForEnd();
    access.Join();
    QFile::remove("libgallium_wgl.dll");

    EXPECT_EQ(calls.Calls().last(), "InstallationFinished");
    EXPECT_TRUE(quill.waitForFinished(timeLimitMs));
    EXPECT_TRUE(
        machine.Log().contains("EXECUTE \"" + QDir::toNativeSeparators(product + "/uninst.exe") +
                               "\" /S /IGNORE_MUTEX -> 1"));
    EXPECT_EQ(
        Files(), QStringList({"InstallerMessage.vbs", "Vorlan Quillax.url", "libgallium_wgl.dll",
                     "libs/codec.dll", "libs/plug-in.dll", "new.txt", "quill.exe", "uninst.exe"}));
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec of new");
    EXPECT_EQ(ReadFile(product + "/libgallium_wgl.dll"), "graphics");
    EXPECT_EQ(Entry(), QStringList("Vorlan Quillax: DisplayVersion = REG_SZ 24.5.1"));
    EXPECT_EQ(key.value("PreferredBrowser").toString(), "of-the-person");
    EXPECT_EQ(Links(), allLinks);
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
    EXPECT_EQ(ListTree(product).filter(QRegularExpression("^(?!link)")), LeftFiles());
    EXPECT_EQ(Links(), QStringList());
    EXPECT_EQ(Records(), keptRecords);
}

TEST_F(UninstallTest, OptionsOfTheInstallationTakeEffectAndAreRemoved)
{
    setup.AddProgram(translation);
    setup.AddArchiveContent(Product(FRONTEND_FOLDER, "new"));
    const auto installed = setup.Start(
        {"/S", "/ALLUSERS", "/AUTOLAUNCH", "/CONTEXTMENU", "/NOSHORTCUTS", "/WEBUID=1234-abcd"});
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
    EXPECT_TRUE(QDir(product).exists());
}

TEST_F(UninstallTest, FilesThatCannotBeDeletedDoNotStopTheRemoval)
{
    InstallCurrent();
    const QString readOnly = product + "/read-only.txt";
    WriteFile(readOnly, "text");
    QFile::setPermissions(readOnly, QFile::ReadOwner);
    QFile openFile(product + "/open.txt");
    QFile openLog(Platform::LogFolder() + "/open.log");
    QDir().mkpath(Platform::LogFolder());
    ASSERT_TRUE(openFile.open(QIODevice::WriteOnly) && openLog.open(QIODevice::WriteOnly));

    const auto result = Uninstall({"/DELETESETTINGS", "/LOG=" + machine.Path("run.log")});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    const bool stay = QSysInfo::kernelType() == "winnt";
    EXPECT_EQ(openFile.exists(), stay);
    EXPECT_EQ(openLog.exists(), stay);
    EXPECT_EQ(QFile::exists(readOnly), stay);
    EXPECT_EQ(ReadFile(machine.Path("run.log")).contains("Failed to remove logs "), stay);
    EXPECT_FALSE(QFile::exists(product + "/quill.exe"));
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
    EXPECT_EQ(ListTree(product), LeftFiles());
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
    EXPECT_EQ(Uninstall({"/REMOVEALL"}).exitCode, 0);
    EXPECT_TRUE(ProductFolderGoes());
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
    EXPECT_FALSE(QDir(product + "/uninst.unfinished").exists());
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_TRUE(QDir(product + "/home/me").exists());
}

// Another front end has installed the product into the folder of another program.
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
    EXPECT_EQ(ListTree(product), LeftFiles());
}

TEST_F(UninstallTest, AnInterruptedRemovalCanBeRepeated)
{
    InstallCurrent();
    // The state after a killed process: the mark exists, some files and the records are removed.
    QDir().mkpath(product + "/uninst.unfinished");
    QFile::remove(product + "/quill.exe");
    RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24").remove("Path");
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_EQ(ListTree(product), LeftFiles());
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
