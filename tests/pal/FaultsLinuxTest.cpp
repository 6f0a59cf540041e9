#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

#include <atomic>
#include <functional>
#include <thread>

#include <Pal.h>
#include <shlobj.h>

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

TEST_F(FaultsLinuxTest, EveryRegistryFunctionCanFail)
{
    HKEY key = nullptr;
    wchar_t name[8] = {};
    DWORD size = 8;
    const std::vector<std::pair<const char*, std::function<LSTATUS()>>> calls = {
        {"RegCreateKeyExW",
            [&] {
                return RegCreateKeyExW(
                    Key(), L"a", 0, nullptr, 0, KEY_READ, nullptr, &key, nullptr);
            }},
        {"RegOpenKeyExW", [&] { return RegOpenKeyExW(Key(), L"", 0, KEY_READ, &key); }},
        {"RegSetValueExW", [&] { return SetText(Key(), L"a", L"b"); }},
        {"RegQueryValueExW",
            [&] { return RegQueryValueExW(Key(), L"a", nullptr, nullptr, nullptr, &size); }},
        {"RegDeleteValueW", [&] { return RegDeleteValueW(Key(), L"a"); }},
        {"RegEnumValueW", [&]
            { return RegEnumValueW(Key(), 0, name, &size, nullptr, nullptr, nullptr, nullptr); }},
        {"RegEnumKeyExW", [&]
            { return RegEnumKeyExW(Key(), 0, name, &size, nullptr, nullptr, nullptr, nullptr); }},
        {"RegDeleteKeyExW", [&] { return RegDeleteKeyExW(Key(), L"a", 0, 0); }},
        {"RegDeleteKeyW", [&] { return RegDeleteKeyW(Key(), L"a"); }},
        {"RegQueryInfoKeyW",
            [&]
            {
                return RegQueryInfoKeyW(Key(), nullptr, nullptr, nullptr, &size, nullptr, nullptr,
                    nullptr, nullptr, nullptr, nullptr, nullptr);
            }},
        {"RegOverridePredefKey", [&] { return RegOverridePredefKey(HKEY_LOCAL_MACHINE, Key()); }},
    };
    for (const auto& [function, call] : calls)
    {
        const Pal::ScopedFault fault(function, ERROR_BADDB);
        EXPECT_EQ(call(), ERROR_BADDB) << function;
    }
    EXPECT_EQ(key, nullptr);
    EXPECT_TRUE(ValueNames(Key()).empty());
}

TEST_F(FaultsLinuxTest, EveryOtherFunctionFailsInItsOwnWayAndSetsTheLastError)
{
    const HANDLE file = Create(L"file");
    char data[4] = {};
    DWORD count = 77;
    wchar_t path[MAX_PATH] = L"old";
    const std::wstring name = PathOf(L"other");
    const std::vector<std::pair<const char*, std::function<bool()>>> calls = {
        {"CreateFileW", [&] { return Create(L"other") == INVALID_HANDLE_VALUE; }},
        {"CreateFileA",
            []
            {
                return CreateFileA("none", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr) ==
                       INVALID_HANDLE_VALUE;
            }},
        {"ReadFile", [&] { return !ReadFile(file, data, 4, &count, nullptr); }},
        {"WriteFile", [&] { return !WriteFile(file, data, 4, &count, nullptr) && count == 0; }},
        {"SetFilePointer", [&]
            { return SetFilePointer(file, 1, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER; }},
        {"GetFileSize", [&] { return GetFileSize(file, nullptr) == INVALID_FILE_SIZE; }},
        {"CreateDirectoryW", [&] { return !CreateDirectoryW(name.c_str(), nullptr); }},
        {"GetFileAttributesW",
            [&] { return GetFileAttributesW(PathOf(L"file").c_str()) == INVALID_FILE_ATTRIBUTES; }},
        {"SHGetSpecialFolderPathW",
            [&] { return !SHGetSpecialFolderPathW(nullptr, path, CSIDL_SYSTEM, FALSE) && !*path; }},
    };
    for (const auto& [function, call] : calls)
    {
        const Pal::ScopedFault fault(function, ERROR_GEN_FAILURE);
        SetLastError(ERROR_SUCCESS);
        EXPECT_TRUE(call()) << function;
        EXPECT_EQ(GetLastError(), DWORD{ERROR_GEN_FAILURE}) << function;
    }
    EXPECT_EQ(GetFileSize(file, nullptr), 0u);
    EXPECT_EQ(GetFileAttributesW(name.c_str()), INVALID_FILE_ATTRIBUTES);
    CloseHandle(file);
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

TEST_F(FaultsLinuxTest, CallsAreCountedOverAllThreads)
{
    const Pal::ScopedFault fault("RegSetValueExW", ERROR_DISK_FULL, 40);
    std::atomic<int> failures = 0;
    const auto write = [&]
    {
        for (int i = 0; i < 10; ++i)
            failures += SetText(Key(), L"value", L"text") == ERROR_DISK_FULL;
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(write);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(fault.Fired());
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
