// The script that removes the product's folder, run by hand.
#pragma once

#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>

#include <gtest/gtest.h>

// A copy of the script with a system and a user of its own below this folder, so that its guards
// never meet a real folder.
class DeletionScript
{
public:
    enum class Waiting
    {
        Skipped,
        UntilWoken
    };

    explicit DeletionScript(const QString& folder, Waiting waits = Waiting::Skipped)
        : root(QDir::fromNativeSeparators(folder) + '/'),
          script(root + (isWindows ? "script.bat" : "script.sh")),
          waiting(root + (isWindows ? "Windows/System32/ping.exe" : "bin/sleep"),
              waits == Waiting::Skipped ? "exit 0" : "until woken")
    {
        const QString name = isWindows ? "uninstallDelayedDir.bat" : "uninstallDelayedDir.sh";
        WriteFile(script, ReadFile(FRONTEND_SOURCES "/resources/Batch/" + name));
        WriteFile(root + "run.bat", batchFile);
    }

    // Starts it for the folder, with the identity of a removal.
    void Start(const QString& folder, const QString& identity)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("VORLAN_REMOVAL", identity);
        environment.insert("HOME", root + "Users/me");
        environment.insert("TMPDIR", root + "Temp");
        environment.insert("TEST_ROOT", QDir::toNativeSeparators(root));
        environment.insert("TEST_FOLDER", folder);
        if (!isWindows)
            environment.insert("PATH", root + "bin:" + qEnvironmentVariable("PATH"));
        process.setProcessEnvironment(environment);
        if (isWindows)
            process.start("cmd.exe", {"/c", QDir::toNativeSeparators(root + "run.bat")});
        else
            process.start("/bin/sh", {script, "0", folder, "false"});
        ASSERT_TRUE(process.waitForStarted());
    }

    // Why it has removed nothing ("a root"); empty if it has removed the folder.
    QString WaitForRefusal()
    {
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_FALSE(QFile::exists(script)) << "the script removes itself";
        const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
        const int reason = errors.lastIndexOf("\" is ");
        EXPECT_EQ(process.exitCode() == 0, reason < 0) << errors.toStdString();
        return process.exitCode() == 0 ? QString() : errors.mid(reason + 5);
    }

    // For a script that waits: returns when its delay has begun, or ends the delay.
    void WaitForDelay() const { waiting.WaitForRun(); }
    void Wake() const
    {
        WriteFile(root + (isWindows ? "Windows/System32/woken" : "bin/woken"), "");
    }

private:
    static inline const bool isWindows = QSysInfo::kernelType() == "winnt";
    // Wine sets SystemRoot anew in every process.
    static constexpr char batchFile[] =
        "@set \"SystemRoot=%TEST_ROOT%Windows\"\r\n"
        "@set \"ProgramFiles=%TEST_ROOT%Program Files\"\r\n"
        "@set \"ProgramFiles(x86)=%TEST_ROOT%Program Files\"\r\n"
        "@set \"ProgramW6432=%TEST_ROOT%Program Files\"\r\n"
        "@set \"CommonProgramFiles=\"\r\n"
        "@set \"CommonProgramFiles(x86)=\"\r\n"
        "@set \"CommonProgramW6432=\"\r\n"
        "@set \"ProgramData=%TEST_ROOT%ProgramData\"\r\n"
        "@set \"TEMP=%TEST_ROOT%Temp\"\r\n"
        "@set \"TMP=%TEST_ROOT%Temp\"\r\n"
        "@set \"PUBLIC=%TEST_ROOT%Users\\Public\"\r\n"
        "@set \"USERPROFILE=%TEST_ROOT%Users\\me\"\r\n"
        "@set \"APPDATA=%TEST_ROOT%Users\\me\\AppData\\Roaming\"\r\n"
        "@set \"LOCALAPPDATA=%TEST_ROOT%Users\\me\\AppData\\Local\"\r\n"
        "@set \"OneDrive=\"\r\n"
        "@call \"%TEST_ROOT%script.bat\" 0 \"%TEST_FOLDER%\" false\r\n";

    const QString root; // ends with a separator
    const QString script;
    const ChildProgram waiting;
    QProcess process;
};
