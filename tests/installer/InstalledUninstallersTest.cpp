#include "installer/SilentUninstaller.h"

#include "installer/Shortcuts.h"
#include "registry/RegistrySettings.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class InstalledUninstallersTest : public testing::Test
{
protected:
    // A clock that moves on by a second at each sleep, and counts the sleeps.
    WaitClock Clock()
    {
        return {[this] { return time; },
            [this]
            {
                time += std::chrono::seconds(1);
                ++sleeps;
                if (sleeps == sleepsUntilAction)
                    action();
            }};
    }

    void RegisterUninstaller(const QString& entry, const QString& uninstaller)
    {
        RegistrySettings(
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + entry)
            .setValue("UninstallString", '"' + uninstaller + '"');
    }

    Machine machine;
    const QString folder = machine.Path("old version/Vorlan Quillax");
    const QString path = folder + QDir::separator() + "uninst.exe";
    std::chrono::steady_clock::time_point time;
    int sleeps = 0;
    int sleepsUntilAction = -1;
    std::function<void()> action;
};

} // namespace

TEST_F(InstalledUninstallersTest, UninstallerRunsSilentlyWithItsPathUnquoted)
{
    const ChildProgram uninstaller(path);
    RunUninstaller(path, false, Clock());
    EXPECT_EQ(uninstaller.Arguments().mid(uninstaller.Arguments().size() - 2),
        QStringList({"/S", "/IGNORE_MUTEX"}));
    EXPECT_EQ(machine.Log().first(), "EXECUTE \"" + path + "\" /S /IGNORE_MUTEX -> 1");
    EXPECT_EQ(machine.Log().filter("Still exists: ").size(), 10);
    EXPECT_EQ(sleeps, 10);
}

TEST_F(InstalledUninstallersTest, FolderThatGoesEndsTheWait)
{
    const ChildProgram uninstaller(path, "exit 3");
    sleepsUntilAction = 4;
    action = [this] { QDir(folder).removeRecursively(); };
    RunUninstaller(path, false, Clock());
    EXPECT_EQ(sleeps, 4);
}

TEST_F(InstalledUninstallersTest, ElevatedUninstallerHasAMinuteToEmptyItsFolder)
{
    const ChildProgram uninstaller(path);
    RunUninstaller(path, true, Clock());
    EXPECT_EQ(sleeps, 60 + 10);

    sleeps = 0;
    sleepsUntilAction = 5;
    action = [this]
    {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
    };
    RunUninstaller(path, true, Clock());
    EXPECT_EQ(sleeps, 5 + 10);
}

TEST_F(InstalledUninstallersTest, ProgramThatCannotStartIsOnlyLogged)
{
    WriteFile(path, "no program");
    for (const QString& noProgram : {path, folder})
    {
        const int lines = machine.Log().size();
        RunUninstaller(noProgram, false, Clock());
        EXPECT_EQ(machine.Log()[lines], "EXECUTE \"" + noProgram + "\" /S /IGNORE_MUTEX -> 0");
        EXPECT_TRUE(machine.Log()[lines + 1].startsWith("Failed to start uninstaller  \""));
    }
    EXPECT_EQ(sleeps, 2 * 10);
}

TEST_F(InstalledUninstallersTest, PreviousVersionIsTheOneOfTheStoredFolder)
{
    RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24")
        .setValue("Path", folder + QDir::separator());
    RegisterUninstaller("Vorlan Quillax", machine.Path("missing.exe"));
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.SkipWaits();
    const SignalLog calls(mediator);
    access.RemovePreviousVersion();
    EXPECT_EQ(calls.Progress(), QStringList());
    EXPECT_TRUE(machine.Log().last().startsWith("Skipping  \""))
        << machine.Log().last().toStdString();

    const ChildProgram uninstaller(path);
    RegisterUninstaller("Vorlan Quillax", path);
    access.RemovePreviousVersion();
    EXPECT_TRUE(uninstaller.WasRun());
    EXPECT_EQ(calls.Progress(), QStringList("0 |  | Uninstalling a previous version"));
}

TEST_F(InstalledUninstallersTest, AdditionalModulesRunInTheirOrderWhereTheyAre)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.SkipWaits();
    access.Profile().additionalModules = QStringList({"Missing", "Module A", "Module B"});
    const ChildProgram moduleA(machine.Path("a/uninst.exe"));
    const ChildProgram moduleB(machine.Path("b/uninst.exe"));
    RegisterUninstaller("Module A", machine.Path("a/uninst.exe"));
    RegisterUninstaller("Module B", machine.Path("b/uninst.exe"));
    access.RemoveAdditionalModules();
    EXPECT_TRUE(moduleA.WasRun());
    EXPECT_TRUE(moduleB.WasRun());
    const QStringList started = machine.Log().filter("EXECUTE ");
    ASSERT_EQ(started.size(), 2);
    EXPECT_TRUE(started[0].contains(machine.Path("a/uninst.exe")));
}
