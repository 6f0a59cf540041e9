#include "support/ChildProcesses.h"

#include <algorithm>

#include <psapi.h>

namespace
{

using Strings = std::vector<std::string>;

class ProcessesTest : public ChildProcesses
{
protected:
    static StartResult StartWaiting() { return Start(L"\"" + ChildProgram() + L"\" wait"); }

    static void End(const StartResult& child)
    {
        EXPECT_TRUE(TerminateProcess(child.process.Get(), 1));
        EXPECT_EQ(WaitForSingleObject(child.process.Get(), longEnough), DWORD{WAIT_OBJECT_0});
    }

    static std::wstring ExecutableOf(const TestHandle& process)
    {
        wchar_t path[MAX_PATH] = L"";
        const DWORD length = K32GetModuleFileNameExW(process.Get(), nullptr, path, MAX_PATH);
        return std::wstring(path, length);
    }

    static std::vector<DWORD> AllProcesses()
    {
        std::vector<DWORD> ids(100000);
        DWORD bytes = 0;
        EXPECT_TRUE(
            K32EnumProcesses(ids.data(), static_cast<DWORD>(ids.size() * sizeof(DWORD)), &bytes));
        ids.resize(bytes / sizeof(DWORD));
        return ids;
    }
};

TEST_F(ProcessesTest, AChildIsActiveUntilItIsTerminatedWithACode)
{
    const StartResult child = StartWaiting();
    DWORD code = 0;
    EXPECT_EQ(WaitForSingleObject(child.process.Get(), 0), DWORD{WAIT_TIMEOUT});
    EXPECT_TRUE(GetExitCodeProcess(child.process.Get(), &code));
    EXPECT_EQ(code, DWORD{STILL_ACTIVE});
    EXPECT_TRUE(TerminateProcess(child.process.Get(), 7));
    EXPECT_EQ(WaitForSingleObject(child.process.Get(), INFINITE), DWORD{WAIT_OBJECT_0});
    EXPECT_EQ(WaitForSingleObject(child.process.Get(), 0), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(GetExitCodeProcess(child.process.Get(), &code));
    EXPECT_EQ(code, 7u);
}

TEST_F(ProcessesTest, ArgumentsAreCutByTheRulesOfQuotesAndBackslashes)
{
    const struct
    {
        const wchar_t* text;
        Strings seen;
    } cases[] = {
        {L"", {}},
        {L"a  b\tc", {"a", "b", "c"}},
        {L"\"a b\" \"\" c", {"a b", "", "c"}},
        {L"a\\b\\\\c \\\\server\\x", {"a\\b\\\\c", "\\\\server\\x"}},
        {L"\"C:\\two words\\\\\" end", {"C:\\two words\\", "end"}},
        {L"say\\\"hi\\\" \\\\\"x y\\\\\"", {"say\"hi\"", "\\x y\\"}},
        {L"\"a\"\"b\" c", {"a\"b", "c"}},
        {L"\"open to the end", {"open to the end"}},
        {L"half\" quoted\"word", {"half quotedword"}},
        {L"/S /D=\"x y\"", {"/S", "/D=x y"}},
    };
    for (const auto& [text, seen] : cases)
        EXPECT_EQ(ArgumentsSeen(text), seen) << QString::fromWCharArray(text).toStdString();
}

TEST_F(ProcessesTest, AChildStartsInTheFolderItIsGiven)
{
    ASSERT_TRUE(CreateDirectoryW(PathOf(L"work").c_str(), nullptr));
    const StartResult child =
        Start(L"\"" + ChildProgram() + L"\" report \"" + PathOf(L"report") + L"\"",
            PathOf(L"work").c_str());
    EXPECT_EQ(ExitCode(child.process), 0);
    ASSERT_EQ(Report().size(), 1u);
    EXPECT_EQ(QFileInfo(QString::fromStdString(Report()[0])).canonicalFilePath(),
        QFileInfo(QString::fromStdWString(PathOf(L"work"))).canonicalFilePath());
}

TEST_F(ProcessesTest, OpenedByItsNumberAProcessIsTheSame)
{
    const StartResult child = StartWaiting();
    const TestHandle opened(
        OpenProcess(PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, child.id));
    ASSERT_TRUE(opened.Get());
    EXPECT_TRUE(TerminateProcess(opened.Get(), 3));
    EXPECT_EQ(ExitCode(opened), 3);
    EXPECT_EQ(ExitCode(child.process), 3);
}

TEST_F(ProcessesTest, ProcessesAreListedWhileTheyRun)
{
    const StartResult child = StartWaiting();
    const std::vector<DWORD> ids = AllProcesses();
    EXPECT_EQ(std::count(ids.begin(), ids.end(), child.id), 1);
    EXPECT_EQ(std::count(ids.begin(), ids.end(), QCoreApplication::applicationPid()), 1);
    End(child);
}

TEST_F(ProcessesTest, AProcessTellsItsExecutable)
{
    const std::wstring program = CopyChild(L"\u00fcbung.exe");
    const StartResult child = Start(L"\"" + program + L"\" wait");
    const TestHandle opened(
        OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, child.id));
    // A process that is about to start knows its executable only a little later.
    EXPECT_TRUE(Becomes([&] { return !ExecutableOf(opened).empty(); }));
    const QFileInfo told(QString::fromStdWString(ExecutableOf(opened)));
    EXPECT_EQ(
        told.canonicalFilePath(), QFileInfo(QString::fromStdWString(program)).canonicalFilePath());
    wchar_t cut[6] = L"";
    EXPECT_EQ(K32GetModuleFileNameExW(opened.Get(), nullptr, cut, 5), 5u);
    EXPECT_EQ(std::wstring(cut, 4), ExecutableOf(opened).substr(0, 4));
    End(child);
}

} // namespace
