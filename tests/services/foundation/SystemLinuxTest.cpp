#include "platform/Links.h"
#include "platform/Proxy.h"
#include "platform/System.h"
#include "support/Machine.h"

#include <windows.h>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(SystemOfTheMachine, WindowsVersionIsASetting)
{
    const Machine machine;
    const Core::Version windows10{10, 0, 0};
    const Core::Version windows7{6, 1, 0};
    EXPECT_TRUE(Core::IsGreaterOrEqualThen(windows10));

    WriteFile(machine.Path("machine/machine.ini"), "windowsVersion=6.1.7601\n");
    EXPECT_FALSE(Core::IsGreaterOrEqualThen(windows10));
    EXPECT_TRUE(Core::IsGreaterOrEqualThen(windows7));
    EXPECT_TRUE(Core::IsGreaterOrEqualThen({6, 1, 7601}));
    EXPECT_FALSE(Core::IsGreaterOrEqualThen({6, 1, 7602}));
}

TEST(SystemOfTheMachine, KindOfDiskIsASetting)
{
    const Machine machine;
    for (const bool isSolidState : {true, false})
    {
        WriteFile(machine.Path("machine/machine.ini"),
            isSolidState ? "solidState=true\n" : "solidState=false\n");
        EXPECT_EQ(Core::IsRunningOnSSD(), isSolidState);
        EXPECT_EQ(Core::IsPathOnSSD(machine.Path("a").toStdString()), isSolidState);
    }
}

TEST(LinksLinuxTest, AFailedRemovalLeavesItsErrorBehind)
{
    EXPECT_FALSE(Platform::RemoveFolder("/proc/sys/kernel/random"));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
}

TEST(Proxy, IsThatOfTheEnvironment)
{
    qputenv("https_proxy", "http://secure:1");
    qputenv("all_proxy", "http://any:2");
    qputenv("no_proxy", "internal.example, .local.example");
    Networking::NativeProxyProvider provider;
    EXPECT_EQ(provider.getProxy("https://links.example/x").address, "http://secure:1");
    EXPECT_EQ(provider.getProxy("http://links.example/x").address, "http://any:2");
    EXPECT_EQ(provider.getProxy("https://internal.example").address, "");
    EXPECT_EQ(provider.getProxy("https://a.local.example:80/").address, "");
    EXPECT_EQ(provider.getProxy("https://notinternal.example").address, "http://secure:1");
    for (const char* name : {"https_proxy", "all_proxy", "no_proxy"})
        qunsetenv(name);
}
