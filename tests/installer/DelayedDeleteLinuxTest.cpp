#include "support/Machine.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace
{

// Runs a copy of the deletion script, which removes itself; whether it refused.
bool IsRefused(const Machine& machine, const QString& folder)
{
    const QString script = machine.Path("script.bat");
    WriteFile(
        script, ReadFile(QString(FRONTEND_SOURCES) + "/resources/Batch/uninstallDelayedDir.sh"));
    const int exitCode = QProcess::execute("/bin/sh", {script, "0", folder, "false"});
    EXPECT_FALSE(QFile::exists(script));
    return exitCode != 0;
}

} // namespace

TEST(DelayedDelete, OnlyTheGivenFolderGoes)
{
    const Machine machine;
    WriteFile(machine.Path("outside/marker"), "stays");
    WriteFile(machine.Path("apps/Vorlan Quillax/libs/deep/file"), "goes");
    WriteFile(machine.Path("apps/neighbour"), "stays");
    QFile::link(machine.Path("outside"), machine.Path("apps/Vorlan Quillax/libs/link"));
    EXPECT_FALSE(IsRefused(machine, machine.Path("apps/Vorlan Quillax")));
    EXPECT_EQ(ListTree(machine.Path("apps")), QStringList("neighbour"));
    EXPECT_EQ(ListTree(machine.Path("outside")), QStringList("marker"));
}

TEST(DelayedDelete, WhatIsNotAFolderOfAProductIsRefused)
{
    const Machine machine;
    WriteFile(machine.Path("folder/file"), "stays");
    QFile::link(machine.Path("folder"), machine.Path("link"));
    for (const QString& folder : {QString(), QString("relative"), machine.Path("missing"),
             machine.Path("folder/file"), machine.Path("link")})
        EXPECT_TRUE(IsRefused(machine, folder)) << folder.toStdString();
    EXPECT_TRUE(QFile::exists(machine.Path("folder/file")));

    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(machine.Path("folder")));
    EXPECT_TRUE(IsRefused(machine, machine.Path("folder")));
    EXPECT_TRUE(IsRefused(machine, machine.Path("folder/.")));
    qputenv("HOME", home);
    EXPECT_TRUE(QFile::exists(machine.Path("folder/file")));
}
