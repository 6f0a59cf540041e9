#include "support/ChildProcesses.h"

#include <shellapi.h>

using ShellExecuteTest = ChildProcesses;

TEST_F(ShellExecuteTest, AProgramRunsWithItsParametersInItsFolder)
{
    const std::wstring program = CopyChild(L"two words/child.exe");
    const std::wstring parameters = L"report \"" + PathOf(L"report") + L"\" \"a b\" /c";
    const std::wstring folder = PathOf(L"two words");
    SHELLEXECUTEINFOW information = {};
    information.cbSize = sizeof information;
    information.fMask = SEE_MASK_NOCLOSEPROCESS;
    information.lpFile = program.c_str();
    information.lpParameters = parameters.c_str();
    information.lpDirectory = folder.c_str();
    ASSERT_TRUE(ShellExecuteExW(&information));
    EXPECT_EQ(ExitCode(TestHandle(information.hProcess)), 0);
    const std::vector<std::string> lines = Report();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_TRUE(QString::fromStdString(lines[0]).endsWith("/two words")) << lines[0];
    EXPECT_EQ(lines[1], "a b");
    EXPECT_EQ(lines[2], "/c");
}
