// Where the platform layer keeps what Windows does and Wine does something else.
#include "support/ChildProcesses.h"

#include <shellapi.h>

namespace
{

class WineDifferencesLinuxTest : public ChildProcesses
{
};

// Wine says TRUE.
TEST_F(WineDifferencesLinuxTest, AnEndedProcessCannotBeTerminated)
{
    const StartResult child = Start(L"\"" + ChildProgram() + L"\" exit 7");
    ASSERT_EQ(ExitCode(child.process), 7);
    EXPECT_FALSE(TerminateProcess(child.process.Get(), 8));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
}

// Windows and Wine tell it in a box that waits for a person.
TEST_F(WineDifferencesLinuxTest, AMissingFileIsNotFoundWithoutAsking)
{
    const std::wstring missing = PathOf(L"none.exe");
    SHELLEXECUTEINFOW information = {};
    information.cbSize = sizeof(information);
    information.fMask = SEE_MASK_NOCLOSEPROCESS;
    information.lpFile = missing.c_str();
    EXPECT_FALSE(ShellExecuteExW(&information));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(information.hProcess, nullptr);
}

} // namespace
