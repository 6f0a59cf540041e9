#include "autolaunch/CreateAutoLauncher.h"

#include "support/Machine.h"

#include <Pal.h>
#include <windows.h>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(TaskScheduler, TaskIsThereFromRegistrationToRemoval)
{
    const Machine machine;
    const auto scheduler = CreateAutoLauncher(QSettings::UserScope, 1);
    EXPECT_FALSE(scheduler->IsRegistered("QuillHelper"));
    EXPECT_TRUE(scheduler->Register("QuillHelper", "C:\\Q\\helper.exe", {"-min", "x"}));
    EXPECT_TRUE(scheduler->IsRegistered("QuillHelper"));
    EXPECT_EQ(scheduler->GetRegisteredNames(), std::vector<std::string>());
    EXPECT_TRUE(scheduler->Unregister("QuillHelper"));
    EXPECT_FALSE(scheduler->IsRegistered("QuillHelper"));
    EXPECT_EQ(Pal::OpenHandles(), std::vector<std::string>());
}

TEST(TaskScheduler, RefusedElevationAndEndlessCommandFail)
{
    const Machine machine;
    const auto scheduler = CreateAutoLauncher(QSettings::UserScope, 1);
    {
        const Pal::ScopedFault refused("ShellExecuteExW", ERROR_CANCELLED);
        EXPECT_FALSE(scheduler->Register("QuillHelper", "C:\\Q\\helper.exe", {}));
    }
    {
        const Pal::ScopedFault endless("WaitForSingleObject", WAIT_TIMEOUT);
        EXPECT_FALSE(scheduler->Unregister("QuillHelper"));
    }
    EXPECT_EQ(Pal::OpenHandles(), std::vector<std::string>());
}
