#include "installer/SilentUninstaller.h"

#include "installer/Shortcuts.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <Pal.h>
#include <windows.h>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

// A wait that is over at its first check.
WaitClock OverAtOnce(std::chrono::steady_clock::time_point& time)
{
    return {[&time] { return time += std::chrono::minutes(2); }, [] {}};
}

} // namespace

TEST(InstalledUninstallersOnLinux, ScriptBesideTheUninstallerRunsThroughTheInterpreter)
{
    const Machine machine;
    const ChildProgram uninstaller(machine.Path("old one/uninst.exe"));
    const QString script = machine.Path("old one/silentUninstall.bat");
    WriteFile(script, "echo \"$@\" > \"$(dirname \"$0\")/script.args\"\n");
    std::chrono::steady_clock::time_point time;
    RunUninstaller(machine.Path("old one/uninst.exe"), false, OverAtOnce(time));
    EXPECT_FALSE(uninstaller.WasRun());
    EXPECT_EQ(ReadFile(machine.Path("old one/script.args")), "/S /IGNORE_MUTEX\n");
    EXPECT_EQ(machine.Log().first(), "EXECUTE \"" + GetStandardLocation(StandardLocation::System) +
                                         "\\cmd.exe\" /C \"\"" + script +
                                         "\" /S /IGNORE_MUTEX\" -> 1");
}

TEST(InstalledUninstallersOnLinux, BrokenWaitIsAnError)
{
    const Machine machine;
    const ChildProgram uninstaller(machine.Path("old/uninst.exe"));
    std::chrono::steady_clock::time_point time;
    const Pal::ScopedFault broken("WaitForSingleObject", ERROR_INVALID_HANDLE);
    try
    {
        RunUninstaller(machine.Path("old/uninst.exe"), false, OverAtOnce(time));
        ADD_FAILURE() << "the broken wait was lost";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_STREQ(error.what(), "Waiting for the calling application is failed. Something must "
                                   "have gone terribly wrong.");
    }
    EXPECT_EQ(Pal::OpenHandles(), std::vector<std::string>());
}
