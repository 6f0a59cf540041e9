// The script that deletes what was moved out of the product's folder, run by hand.
#pragma once

#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>

#include <gtest/gtest.h>

// A copy of the script in this folder, with a program of its own in place of that with which it
// waits.
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
        "@call \"%TEST_ROOT%script.bat\" 0 \"%TEST_FOLDER%\" false\r\n";

    const QString root; // ends with a separator
    const QString script;
    const ChildProgram waiting;
    QProcess process;
};
