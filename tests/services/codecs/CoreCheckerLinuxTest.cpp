// A process that cannot be killed: kill() is replaced in this program.
#include "platform/CoreChecker.h"
#include "support/CodecProbe.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>

namespace
{

std::atomic<bool> isKillingRefused = false;
std::atomic<pid_t> survivor = 0;

} // namespace

extern "C" __attribute__((visibility("default"))) int kill(pid_t process, int signal) noexcept
{
    if (!isKillingRefused)
        return static_cast<int>(syscall(SYS_kill, process, signal));
    survivor = -process;
    return 0;
}

TEST(CoreCheckerLinuxTest, AProbeThatCannotBeEndedIsLeftBehindAndReported)
{
    const Machine machine;
    const CodecProbe probe(machine.Path("corechecker.exe"));
    Vorlan::Core::Utils::CoreCheckerLauncher launcher(probe.Path());
    launcher.SetCheckCoreTimeout(std::chrono::seconds(1));
    launcher.SetVerifiableCodecs({"X"});
    launcher.SetVerifiableCodecImpls({"hang"});
    isKillingRefused = true;
    launcher.StartCheck(Vorlan::Core::Utils::CheckType::PluginsAndCodecs);
    isKillingRefused = false;

    EXPECT_EQ(launcher.GetStatisticInfo().at("codec.X").at("hang"), "cannot be ended");
    EXPECT_EQ(
        launcher.GetErrorInfo(), "The probe for X with hang cannot be ended and was left running");
    ASSERT_GT(survivor, 0);
    kill(survivor, SIGKILL);
    EXPECT_EQ(waitpid(survivor, nullptr, 0), survivor);
}
