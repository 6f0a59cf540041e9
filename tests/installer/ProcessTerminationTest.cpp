#include "installer/ProcessTermination.h"

#include "registry/RegistrySettings.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

// A line of the log with the path in it as Qt's logger writes it.
QString InLog(const QString& path)
{
    return '"' + QDir::fromNativeSeparators(path) + '"';
}

} // namespace

TEST(ProcessTermination, OnlyProgramsDirectlyInTheFolderEnd)
{
    const Machine machine;
    const QString folder = machine.Path("Vorlan Quillax");
    const QString path = folder + QDir::separator() + "quill.exe";
    ChildProgram inFolder(path, "wait");
    ChildProgram below(folder + "/tools/quill.exe", "wait");
    ChildProgram beside(machine.Path("Vorlan/quill.exe"), "wait");
    for (ChildProgram* program : {&inFolder, &below, &beside})
        program->Start();

    KillAllProcessesInFolder(machine.Path("Vorlan/../Vorlan Quillax/"));
    EXPECT_TRUE(inFolder.HasEnded());
    EXPECT_TRUE(below.IsRunning());
    EXPECT_TRUE(beside.IsRunning());
    const QStringList log = machine.Log();
    ASSERT_EQ(log.size(), 3) << log.join('\n').toStdString();
    EXPECT_TRUE(log[0].startsWith("Terminating any process running in installation folder:  "));
    EXPECT_TRUE(log[1].startsWith("Found running process in a folder: "));
    EXPECT_TRUE(log[1].endsWith("  :  " + InLog(path))) << log[1].toStdString();
    EXPECT_EQ(log[2], "Process  " + InLog(path) + "  terminated.");
}

TEST(ProcessTermination, FolderThatIsNotThereIsPassedOver)
{
    const Machine machine;
    KillAllProcessesInFolder(machine.Path("missing"));
    EXPECT_EQ(machine.Log(), QStringList());
}

TEST(ProcessTermination, CompanionProgramIsEndedByNameAndNoted)
{
    const Machine machine;
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    const RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    access.TerminateApps();
    EXPECT_FALSE(key.contains("KilledDuringUpdateByInstaller"));

    const QString path = QCoreApplication::applicationDirPath() + "/RouterApplication.exe";
    for (const char* leftOver : {"", ".does", ".args"})
        QFile::remove(path + leftOver);
    {
        ChildProgram router(path, "wait");
        router.Start();
        access.TerminateApps();
        EXPECT_TRUE(router.HasEnded());
    }
    EXPECT_EQ(key.value("KilledDuringUpdateByInstaller").toString(), "true");
    for (const char* leftOver : {"", ".does", ".args"})
        QFile::remove(path + leftOver);
}
