#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

#include <Pal.h>

namespace
{

using Strings = std::vector<std::string>;
using Expect = Pal::ScopedFault::Expect;

void FailTest(const std::string& text)
{
    ADD_FAILURE() << text;
}

// For every test of the program: a fault that was never used fails the test that set it.
class UnusedFaultsFailTests : public ::testing::Environment
{
public:
    void SetUp() override { Pal::SetUnusedFaultHandler(FailTest); }
};

const ::testing::Environment* const unusedFaults =
    ::testing::AddGlobalTestEnvironment(new UnusedFaultsFailTests);

class FaultsLinuxTest : public PalMachine
{
protected:
    HANDLE Create(const std::wstring& name) const
    {
        return CreateFileW(PathOf(name).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
            nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
};

TEST_F(FaultsLinuxTest, TheNamedCallFailsAndNoOther)
{
    Pal::ScopedFault fault("RegSetValueExW", ERROR_DISK_FULL, 2);
    EXPECT_EQ(SetText(Key(), L"first", L"1"), ERROR_SUCCESS);
    EXPECT_FALSE(fault.Fired());
    EXPECT_EQ(SetText(Key(), L"second", L"2"), ERROR_DISK_FULL);
    EXPECT_TRUE(fault.Fired());
    EXPECT_EQ(SetText(Key(), L"third", L"3"), ERROR_SUCCESS);
    EXPECT_EQ(ValueNames(Key()), (std::vector<std::wstring>{L"first", L"third"}));
}

TEST_F(FaultsLinuxTest, AFailedCloseHasClosedAllTheSame)
{
    const Strings before = Pal::OpenHandles();
    const HANDLE file = Create(L"file");
    const HKEY key = MakeKey(Key(), L"Sub");
    const Pal::ScopedFault fileFault("CloseHandle", ERROR_WRITE_FAULT);
    const Pal::ScopedFault keyFault("RegCloseKey", ERROR_INVALID_HANDLE);
    EXPECT_FALSE(CloseHandle(file));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_WRITE_FAULT});
    EXPECT_EQ(RegCloseKey(key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(Pal::OpenHandles(), before);
}

TEST_F(FaultsLinuxTest, ASweepReachesEveryCallAndThenStaysUnused)
{
    const auto operation = [this]
    {
        const HANDLE file = Create(L"file");
        DWORD count = 0;
        const bool written =
            file != INVALID_HANDLE_VALUE && WriteFile(file, "x", 1, &count, nullptr);
        return (file == INVALID_HANDLE_VALUE || CloseHandle(file)) && written &&
               SetText(Key(), L"done", L"yes") == ERROR_SUCCESS;
    };
    const Strings before = Pal::OpenHandles();
    unsigned failing = 0;
    for (bool fired = true; fired;)
    {
        const Pal::ScopedFault fault("*", ERROR_GEN_FAILURE, failing + 1, Expect::MayStayUnused);
        const bool succeeded = operation();
        fired = fault.Fired();
        EXPECT_EQ(succeeded, !fired);
        EXPECT_EQ(Pal::OpenHandles(), before);
        failing += fired;
    }
    EXPECT_EQ(failing, 4u);
}

TEST_F(FaultsLinuxTest, AFaultThatNeverFiredIsReportedUnlessItMayStayUnused)
{
    Strings reports;
    Pal::SetUnusedFaultHandler([&reports](const std::string& text) { reports.push_back(text); });
    {
        const Pal::ScopedFault unused("WriteFile", ERROR_DISK_FULL, 2);
        const Pal::ScopedFault allowed("ReadFile", ERROR_READ_FAULT, 1, Expect::MayStayUnused);
        const Pal::ScopedFault used("RegSetValueExW", ERROR_DISK_FULL);
        SetText(Key(), L"value", L"text");
    }
    Pal::SetUnusedFaultHandler(FailTest);
    EXPECT_EQ(reports, Strings{"The injected fault for call 2 of WriteFile was never used: there "
                               "were 0 calls."});
}

} // namespace
