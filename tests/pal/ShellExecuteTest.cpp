#include "support/ChildProcesses.h"

#include <shellapi.h>

namespace
{

class ShellExecuteTest : public ChildProcesses
{
protected:
    // Both texts must outlive the result.
    static SHELLEXECUTEINFOW Information(const wchar_t* file, const wchar_t* parameters)
    {
        SHELLEXECUTEINFOW information = {};
        information.cbSize = sizeof(information);
        information.fMask = SEE_MASK_NOCLOSEPROCESS;
        information.lpFile = file;
        information.lpParameters = parameters;
        information.nShow = SW_HIDE;
        return information;
    }
};

TEST_F(ShellExecuteTest, AProgramRunsWithItsParametersInItsFolder)
{
    const std::wstring program = CopyChild(L"two words/child.exe");
    const std::wstring parameters = L"report \"" + PathOf(L"report") + L"\" \"a b\" /c";
    const std::wstring folder = PathOf(L"two words");
    SHELLEXECUTEINFOW information = Information(program.c_str(), parameters.c_str());
    information.lpDirectory = folder.c_str();
    ASSERT_TRUE(ShellExecuteExW(&information));
    EXPECT_EQ(ExitCode(TestHandle(information.hProcess)), 0);
    const std::vector<std::string> lines = Report();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_TRUE(QString::fromStdString(lines[0]).endsWith("/two words")) << lines[0];
    EXPECT_EQ(lines[1], "a b");
    EXPECT_EQ(lines[2], "/c");
}

TEST_F(ShellExecuteTest, AProcessHandleComesOnlyWhereItIsAskedFor)
{
    const std::wstring program = ChildProgram();
    SHELLEXECUTEINFOW information = Information(program.c_str(), L"exit 0");
    information.fMask = 0;
    information.lpVerb = L"open";
    ASSERT_TRUE(ShellExecuteExW(&information));
    EXPECT_EQ(information.hProcess, nullptr);
}

} // namespace
