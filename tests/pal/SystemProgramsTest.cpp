#include "support/ChildProcesses.h"

#include <QProcess>
#include <QUuid>

#include <shlobj.h>

namespace
{

class SystemProgramsTest : public ChildProcesses
{
protected:
    void SetUp() override
    {
        ChildProcesses::SetUp();
        wchar_t folder[MAX_PATH] = L"";
        ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, folder, CSIDL_SYSTEM, FALSE));
        cmdPath = std::wstring(folder) + L"\\cmd.exe";
    }

    long long RunCmd(const std::wstring& arguments) const
    {
        const StartResult cmd = Start(cmdPath + L" " + arguments);
        EXPECT_EQ(cmd.error, DWORD{ERROR_SUCCESS});
        return ExitCode(cmd.process);
    }

    std::wstring cmdPath;
};

TEST_F(SystemProgramsTest, TaskkillEndsEveryProcessOfAnImageNameAndNoOther)
{
    const QString id = QUuid::createUuid().toString(QUuid::Id128).left(8);
    const QString name = "VorlanTarget" + id + ".exe";
    const std::wstring target = CopyChild(name.toStdWString());
    const std::wstring sameName = CopyChild(L"elsewhere/" + name.toStdWString());
    const std::wstring other = CopyChild(L"VorlanOther" + id.toStdWString() + L".exe");
    const StartResult first = Start(L"\"" + target + L"\" wait");
    const StartResult second = Start(L"\"" + sameName + L"\" wait");
    const StartResult third = Start(L"\"" + other + L"\" wait");

    EXPECT_EQ(QProcess::execute("taskkill", {"/IM", name.toUpper(), "/F"}), 0);
    EXPECT_EQ(WaitForSingleObject(first.process.Get(), longEnough), DWORD{WAIT_OBJECT_0});
    EXPECT_EQ(WaitForSingleObject(second.process.Get(), longEnough), DWORD{WAIT_OBJECT_0});
    EXPECT_EQ(WaitForSingleObject(third.process.Get(), 0), DWORD{WAIT_TIMEOUT});
    EXPECT_EQ(QProcess::execute("taskkill", {"/IM", name, "/F"}), 128);
    EXPECT_TRUE(TerminateProcess(third.process.Get(), 1));
}

TEST_F(SystemProgramsTest, CmdRunsTheProgramBetweenItsOuterQuotes)
{
    const std::wstring child = CopyChild(L"two words/child.exe");
    EXPECT_EQ(RunCmd(L"/C \"\"" + child + L"\" exit 5\""), 5);
    EXPECT_EQ(RunCmd(L"/C \"" + ChildProgram() + L" exit 6\""), 6);
    EXPECT_EQ(RunCmd(L"/c " + ChildProgram() + L" exit 7"), 7);
    EXPECT_EQ(RunCmd(L"/C \"" + child + L"\""), 99); // without arguments
    const std::wstring report = PathOf(L"report");
    EXPECT_EQ(RunCmd(L"/C \"\"" + child + L"\" report \"" + report + L"\" \"a  b\" /S\""), 0);
    ASSERT_EQ(Report().size(), 3u);
    EXPECT_EQ(Report()[1], "a  b");
    EXPECT_EQ(Report()[2], "/S");
}

TEST_F(SystemProgramsTest, CmdFailsForWhatIsNotThere)
{
    const long long code = RunCmd(L"/C \"\"" + PathOf(L"no file.exe") + L"\" /S\"");
    EXPECT_GT(code, 0);
}

} // namespace
