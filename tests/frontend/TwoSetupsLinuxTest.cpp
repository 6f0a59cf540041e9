#include "support/Machine.h"
#include "support/SetupRun.h"

#include <QCoreApplication>
#include <QFile>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The previous version's uninstaller blocks the accepted setup until the other one has ended.
TEST(TwoSetups, OneRunsAndTheOtherIsRefusedTwentyTimes)
{
    SetupRun setup;
    setup.AddArchive("small.7z");
    ASSERT_EQ(setup.Start({"/S"}).exitCode, 0);
    const QString product = setup.DefaultProductFolder();
    const std::string gate = (setup.WorkFolder() + "/gate").toStdString();
    ASSERT_EQ(mkfifo(gate.c_str(), 0600), 0);
    const int opener = open(gate.c_str(), O_RDWR | O_CLOEXEC);

    for (int round = 0; round < 20; ++round)
    {
        SCOPED_TRACE(round);
        WriteFile(product + "/uninst.exe", "#!/bin/sh\nread line <'" +
                                               QByteArray::fromStdString(gate) +
                                               "'\nrm -r \"$(dirname \"$0\")\"\n");
        QProcess setups[2];
        for (QProcess& process : setups)
            setup.Launch(process, setup.SetupFolder() + "/installergui.exe", {"/S"});
        while (
            setups[0].state() != QProcess::NotRunning && setups[1].state() != QProcess::NotRunning)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const bool isFirstOut = setups[0].state() == QProcess::NotRunning;
        QProcess& refused = setups[isFirstOut ? 0 : 1];
        QProcess& goingOn = setups[isFirstOut ? 1 : 0];
        EXPECT_EQ(refused.exitCode(), SetupRun::ShownExitCode(1618));
        EXPECT_TRUE(refused.readAllStandardError().startsWith("Another setup is running"));

        EXPECT_EQ(write(opener, "\n", 1), 1);
        EXPECT_TRUE(goingOn.waitForFinished(60000));
        EXPECT_EQ(goingOn.exitCode(), 0) << goingOn.readAllStandardError().toStdString();
        EXPECT_EQ(ReadFile(product + "/quill.exe"), ReadFile(Payload("small-content/quill.exe")));
    }
    close(opener);
}
