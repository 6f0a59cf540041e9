#include "support/ChildProcesses.h"

#include <QProcess>

#include <shellapi.h>

namespace
{

class SystemProgramsLinuxTest : public ChildProcesses
{
protected:
    static QString BuiltProgram(const QString& name)
    {
        return QCoreApplication::applicationDirPath() + '/' + name;
    }

    QString SystemFolder() const { return MachineFolder() + "/Windows/System32/"; }

    // What a program says on either stream, behind its exit code.
    static std::string Said(
        const QString& program, const QStringList& arguments, const QByteArray& input = {})
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        return std::to_string(process.exitCode()) + " " + process.readAll().toStdString();
    }

    static std::string SchTasks(const QStringList& arguments, const QByteArray& input = {})
    {
        return Said("schtasks", arguments, input);
    }

    // As programs with elevated rights are started.
    static long long Elevated(const wchar_t* parameters)
    {
        SHELLEXECUTEINFOW information = {};
        information.cbSize = sizeof(information);
        information.fMask = SEE_MASK_NOCLOSEPROCESS;
        information.lpVerb = L"runas";
        information.lpFile = L"schtasks";
        information.lpParameters = parameters;
        EXPECT_TRUE(ShellExecuteExW(&information));
        return ExitCode(TestHandle(information.hProcess));
    }
};

TEST_F(SystemProgramsLinuxTest, TheMachineLinksToThePrograms)
{
    for (const char* name : {"taskkill", "schtasks", "cmd.exe"})
        EXPECT_EQ(QFile::symLinkTarget(SystemFolder() + name), BuiltProgram(name));
}

TEST_F(SystemProgramsLinuxTest, ALinkThatLeadsNowhereIsMadeAnewAndAnotherProgramStays)
{
    ASSERT_TRUE(QFile::remove(SystemFolder() + "taskkill"));
    ASSERT_TRUE(QFile::link("/gone/taskkill", SystemFolder() + "taskkill"));
    ASSERT_TRUE(QFile::remove(SystemFolder() + "cmd.exe"));
    ASSERT_TRUE(QFile::copy("/bin/true", SystemFolder() + "cmd.exe"));
    EXPECT_EQ(ExitCode(Start(SystemFolder().toStdWString() + L"cmd.exe /C x").process), 0);
    EXPECT_EQ(QFile::symLinkTarget(SystemFolder() + "taskkill"), BuiltProgram("taskkill"));
}

TEST_F(SystemProgramsLinuxTest, OnlyTheMachineInUseIsOnThePath)
{
    const QString former = SystemFolder().chopped(1);
    EXPECT_EQ(qgetenv("PATH").split(':').first(), former.toUtf8());
    const QByteArray formerPath = qgetenv("PATH");
    qputenv("VORLAN_MACHINE", (MachineFolder() + "-other").toUtf8());
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"", 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
    const QList<QByteArray> folders = qgetenv("PATH").split(':');
    EXPECT_EQ(folders.first(), (MachineFolder() + "-other/Windows/System32").toUtf8());
    EXPECT_EQ(folders.count(former.toUtf8()), 0);
    EXPECT_EQ(folders.mid(1), formerPath.split(':').mid(1));
}

TEST_F(SystemProgramsLinuxTest, ATaskIsMadeFoundAndDeleted)
{
    EXPECT_EQ(Elevated(L"/query /tn Quill"), 1);
    EXPECT_EQ(
        Elevated(L"/create /sc onlogon /rl highest /tn Quill /tr \"C:\\two words\\a.exe -x\""), 0);
    EXPECT_EQ(Elevated(L"/query /tn quill"), 0);
    EXPECT_EQ(SchTasks({"/query", "/tn", "QUILL"}),
        "0 name=Quill\nschedule=onlogon\nlevel=highest\ncommand=C:\\two words\\a.exe -x\n");
    EXPECT_EQ(Elevated(L"/delete /f /tn Quill"), 0);
    EXPECT_EQ(Elevated(L"/delete /f /tn Quill"), 1);
    EXPECT_EQ(Elevated(L"/query /tn Quill"), 1);
}

TEST_F(SystemProgramsLinuxTest, ATaskIsReplacedAndDeletedByForceOrByAnswer)
{
    const auto create = [](const char* command, const QStringList& more, const QByteArray& input)
    {
        return SchTasks(QStringList{"/create", "/sc", "onlogon", "/rl", "highest", "/tn",
                            "a/\u00e4", "/tr", command} +
                            more,
            input);
    };
    const auto isCommand = [](const std::string& command)
    {
        return SchTasks({"/query", "/tn", "a/\u00e4"}).find("command=" + command + "\n") !=
               std::string::npos;
    };
    EXPECT_EQ(create("one", {}, ""), "0 SUCCESS: The scheduled task \"a/\u00e4\" has successfully "
                                     "been created.\n");
    for (const char* input : {"", "n\n", "\n"})
    {
        EXPECT_EQ(create("two", {}, input),
            "1 WARNING: The task name \"a/\u00e4\" already exists. Do you want to replace it "
            "(Y/N)? ERROR: The task \"a/\u00e4\" is not replaced.\n");
        EXPECT_TRUE(isCommand("one"));
    }
    EXPECT_EQ(create("two", {}, "y\n").front(), '0');
    EXPECT_TRUE(isCommand("two"));
    EXPECT_EQ(create("three", {"/f"}, "").front(), '0');
    EXPECT_TRUE(isCommand("three"));
    EXPECT_EQ(SchTasks({"/delete", "/tn", "a/\u00e4"}).front(), '1');
    EXPECT_TRUE(isCommand("three"));
    EXPECT_EQ(SchTasks({"/delete", "/tn", "a/\u00e4"}, "Y\n").front(), '0');
    EXPECT_FALSE(isCommand("three"));
}

TEST_F(SystemProgramsLinuxTest, WhatAProgramDoesNotUnderstandIsRefused)
{
    const struct
    {
        QString program;
        QStringList arguments;
        std::string said;
    } cases[] = {
        {"schtasks", {"/query", "/tn", "two", "words"},
            "1 ERROR: Invalid argument/option - 'words'.\n"},
        {"schtasks", {"/create", "/tn", "a", "/tr", "b", "/sc", "daily", "/rl", "highest"},
            "1 ERROR: Invalid value for /sc: only onlogon is known.\n"},
        {"schtasks", {"/create", "/tn", "a"}, "1 ERROR: Missing option /tr.\n"},
        {"schtasks", {"/run"}, "1 ERROR: Invalid argument/option - '/run'.\n"},
        {"taskkill", {"/IM", "a.exe"},
            "1 ERROR: Invalid syntax. Use taskkill /IM <image name> /F.\n"},
        {"taskkill", {"/PID", "1", "/F"},
            "1 ERROR: Invalid syntax. Use taskkill /IM <image name> /F.\n"},
        {"taskkill", {"/IM", "no such image.exe", "/F"},
            "128 ERROR: The process \"no such image.exe\" not found.\n"},
        {"cmd.exe", {"/K", "dir"}, "1 cmd.exe: use cmd.exe /C <command line>\n"},
    };
    for (const auto& [program, arguments, said] : cases)
        EXPECT_EQ(Said(program, arguments), said);
}

TEST_F(SystemProgramsLinuxTest, CmdRunsABatchFileWithItsArguments)
{
    QFile batch(QString::fromStdWString(PathOf(L"silent uninstall.bat")));
    ASSERT_TRUE(batch.open(QIODevice::WriteOnly));
    batch.write("printf '%s|' \"$@\"; exit 7");
    batch.close();
    const QString command = "/C \"\"" + batch.fileName() + "\" /S /IGNORE_MUTEX\"";
    EXPECT_EQ(Said("cmd.exe", {command}), "7 /S|/IGNORE_MUTEX|");
    EXPECT_EQ(ExitCode(Start(L"cmd.exe " + command.toStdWString()).process), 7);
}

} // namespace
