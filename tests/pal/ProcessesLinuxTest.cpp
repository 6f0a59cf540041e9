#include "support/ChildProcesses.h"
#include "support/LinuxProcesses.h"

#include <csignal>

#include <QProcess>

#include <shellapi.h>

#include <Pal.h>

namespace
{

using Strings = std::vector<std::string>;

class ProcessesLinuxTest : public ChildProcesses
{
protected:
    static StartResult StartWaiting(const std::wstring& program = ChildProgram())
    {
        return Start(L"\"" + program + L"\" wait");
    }

    static bool IsInProcessTable(DWORD id) { return kill(static_cast<pid_t>(id), 0) == 0; }

    std::wstring WriteProgram(
        const std::wstring& name, const QByteArray& text, QFile::Permissions permissions) const
    {
        QFile file(QString::fromStdWString(PathOf(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        EXPECT_TRUE(file.setPermissions(permissions));
        return PathOf(name);
    }
};

TEST_F(ProcessesLinuxTest, AChildWhoseHandleIsClosedIsCollectedWhenItEnds)
{
    StartResult running = StartWaiting();
    running.process.Close();
    EXPECT_TRUE(IsInProcessTable(running.id));
    EXPECT_EQ(kill(static_cast<pid_t>(running.id), SIGKILL), 0);
    EXPECT_TRUE(Becomes([&] { return !IsInProcessTable(running.id); }));

    StartResult ended = Start(L"\"" + ChildProgram() + L"\" exit 0");
    EXPECT_EQ(WaitForSingleObject(ended.process.Get(), longEnough), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(IsInProcessTable(ended.id));
    ended.process.Close();
    EXPECT_FALSE(IsInProcessTable(ended.id));
}

TEST_F(ProcessesLinuxTest, ChildrenOfOthersAreLeftToThem)
{
    QProcess theirs;
    theirs.start(QString::fromStdWString(ChildProgram()), {"wait"});
    ASSERT_TRUE(theirs.waitForStarted());
    const auto id = static_cast<DWORD>(theirs.processId());
    const TestHandle opened(
        OpenProcess(PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, id));
    ASSERT_TRUE(opened.Get());
    EXPECT_EQ(ExitCode(Start(L"\"" + ChildProgram() + L"\" exit 2").process), 2);
    EXPECT_TRUE(TerminateProcess(opened.Get(), 5));
    EXPECT_EQ(WaitForSingleObject(opened.Get(), longEnough), DWORD{WAIT_OBJECT_0});
    DWORD code = 77;
    EXPECT_FALSE(GetExitCodeProcess(opened.Get(), &code));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NOT_SUPPORTED});
    EXPECT_EQ(code, 77u);
    ASSERT_TRUE(theirs.waitForFinished());
    EXPECT_EQ(theirs.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(theirs.exitCode(), SIGKILL);
}

TEST_F(ProcessesLinuxTest, AnEndBySomebodyElsesSignalIsNoExitCodeOfTheProgram)
{
    const StartResult child = StartWaiting();
    kill(static_cast<pid_t>(child.id), SIGTERM);
    EXPECT_EQ(ExitCode(child.process), 128 + SIGTERM);
}

TEST_F(ProcessesLinuxTest, ABatchFileIsReadByTheShellAndNeedsNoPermissionToRun)
{
    const std::wstring batch = WriteProgram(L"two words.BAT",
        "printf '%s\\n' \"$PWD\" \"$@\" >report; exit 3", QFile::ReadOwner | QFile::WriteOwner);
    const std::string folder = QString::fromStdWString(PathOf(L"")).chopped(1).toStdString();
    const StartResult unquoted = Start(batch + L" \"a b\" c\\d", PathOf(L"").c_str());
    EXPECT_EQ(ExitCode(unquoted.process), 3);
    EXPECT_EQ(Report(), (Strings{folder, "a b", "c\\d"}));
    const StartResult quoted = Start(L"\"" + batch + L"\" \"c d\"", PathOf(L"").c_str());
    EXPECT_EQ(ExitCode(quoted.process), 3);
    EXPECT_EQ(Report(), (Strings{folder, "c d"}));
}

TEST_F(ProcessesLinuxTest, AFileThatMayNotRunIsDeniedAndAFolderIsNoProgram)
{
    const std::wstring program = WriteProgram(L"a.exe", "#!/bin/sh\n", QFile::ReadOwner);
    EXPECT_EQ(Start(program).error, DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(Start(PathOf(L"")).error, DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(Start(L"x", nullptr, PathOf(L"").c_str()).error, DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(Start(PathOf(L"none/a.exe")).error, DWORD{ERROR_PATH_NOT_FOUND});
}

TEST_F(ProcessesLinuxTest, TheMachinesProgramsComeFirst)
{
    EXPECT_EQ(ExitCode(Start(L"sh -c \"exit 4\"").process), 4);
    ASSERT_TRUE(QFile::copy(
        QString::fromStdWString(ChildProgram()), MachineFolder() + "/Windows/System32/sh"));
    EXPECT_EQ(ExitCode(Start(L"sh exit 5").process), 5);
    EXPECT_EQ(QProcess::execute("sh", {"exit", "6"}), 6);
    EXPECT_EQ(ExitCode(Start(L"/bin/sh -c \"sh exit 7\"").process), 7);
    ASSERT_TRUE(QFile::rename(
        MachineFolder() + "/Windows/System32/sh", MachineFolder() + "/Windows/child.exe"));
    EXPECT_EQ(ExitCode(Start(L"child exit 8").process), 8);
}

TEST_F(ProcessesLinuxTest, AChildGetsOnlyTheStreamsItIsGiven)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    PROCESS_INFORMATION information = {};
    std::wstring line = L"/bin/sh -c \"echo seen; echo lost >&2; ls -l /proc/self/fd | wc -l\"";
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
        nullptr, nullptr, &startup, &information));
    CloseHandle(information.hThread);
    EXPECT_EQ(ExitCode(TestHandle(information.hProcess)), 0);
    // ls counts its three streams, the folder that it reads and a line for the sum.
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "seen\n5\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ProcessesLinuxTest, WithoutAWindowAChildHasNoStreamsAndElseThoseOfItsParent)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const std::wstring line = L"\"" + ChildProgram() + L"\" print word";
    EXPECT_EQ(ExitCode(Start(line).process), 0);
    EXPECT_EQ(ExitCode(Start(line, nullptr, nullptr, 0).process), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "word");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "word");
}

TEST_F(ProcessesLinuxTest, AnElevatedProgramIsOneLikeAnyOther)
{
    const std::wstring program = ChildProgram();
    SHELLEXECUTEINFOW information = {};
    information.cbSize = sizeof(information);
    information.fMask = SEE_MASK_NOCLOSEPROCESS;
    information.lpVerb = L"runas";
    information.lpFile = program.c_str();
    information.lpParameters = L"wait";
    {
        const Pal::ScopedFault refused("ShellExecuteExW", ERROR_CANCELLED);
        EXPECT_FALSE(ShellExecuteExW(&information));
        EXPECT_EQ(GetLastError(), DWORD{ERROR_CANCELLED});
    }
    ASSERT_TRUE(ShellExecuteExW(&information));
    const TestHandle process(information.hProcess);
    const auto sessionOf = [](const std::string& name)
    { return getsid(std::stoi(name.substr(name.find(' ')))); };
    EXPECT_NE(sessionOf(Pal::OpenHandles().back()), getsid(0));
    EXPECT_TRUE(TerminateProcess(process.Get(), 1));
    EXPECT_EQ(ExitCode(process), 1);
}

TEST_F(ProcessesLinuxTest, OpenHandlesNamesProcessesAndThreadsAndMutexes)
{
    const Strings before = Pal::OpenHandles();
    {
        const StartResult child = StartWaiting();
        const TestHandle mutex(CreateMutexW(nullptr, FALSE, L"setup"));
        Strings expected = before;
        expected.push_back("mutex setup");
        expected.push_back("process " + std::to_string(child.id));
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(Pal::OpenHandles(), expected);
        TerminateProcess(child.process.Get(), 1);
    }
    EXPECT_EQ(Pal::OpenHandles(), before);
}

TEST_F(ProcessesLinuxTest, AMutexGoesWithTheProcessThatHasIt)
{
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t holder = StartChild(
        [&ready]
        {
            CreateMutexW(nullptr, FALSE, L"setup");
            const bool told = write(ready[1], "x", 1) == 1;
            pause();
            return told ? 0 : 1;
        });
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    close(ready[0]);
    close(ready[1]);
    const auto create = []
    {
        const TestHandle mutex(CreateMutexW(nullptr, FALSE, L"setup"));
        return GetLastError();
    };
    EXPECT_EQ(create(), DWORD{ERROR_ALREADY_EXISTS});
    qputenv("VORLAN_MACHINE", (MachineFolder() + "-other").toUtf8());
    EXPECT_EQ(create(), DWORD{ERROR_SUCCESS});
    qputenv("VORLAN_MACHINE", MachineFolder().toUtf8());
    kill(holder, SIGKILL);
    EXPECT_EQ(WaitForChild(holder), -1);
    EXPECT_EQ(create(), DWORD{ERROR_SUCCESS});
}

} // namespace
