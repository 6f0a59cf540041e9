#include "installer/FileCopy.h"
#include "installer/ProgressThrottle.h"
#include "installer/Shortcuts.h"
#include "registry/RegistrySettings.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThreadPool>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class FilePlacementTest : public testing::Test
{
protected:
    void SetUp() override
    {
        InstallationSettings& settings = access.Settings();
        settings.installDir = installDir;
        OpenArchive({{"installergui.exe", "front end of the archive"}, {"quill.exe", "program"},
            {"empty.txt", ""}, {"Libs/Codec.dll", "codec"}});
    }

    void OpenArchive(const std::vector<ArchiveEntry>& entries)
    {
        WriteFile(machine.Path("test.7z"), CreateArchive(entries));
        access.OpenArchive(machine.Path("test.7z"));
    }

    void StorePreviousVersion(const QString& bits)
    {
        RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
        key.setValue("Path", machine.Path("old/"));
        key.setValue("ArchitectBits", bits);
    }

    // The error that placing the files ends with, empty when there is none.
    QString ExtractFiles(const QStringList& reserved = {})
    {
        try
        {
            access.ExtractFiles(reserved);
        }
        catch (const std::runtime_error& error)
        {
            return error.what();
        }
        return QString();
    }

    Machine machine;
    const QString name = "setup.exe";
    const QString installDir = machine.Path("apps/Vorlan Quillax/");
    InstallerMediator mediator{{name, false, true, QSettings::UserScope, false}};
    MediatorAccess access{mediator};
    SignalLog signalLog{mediator};
};

} // namespace

TEST_F(FilePlacementTest, FilesBesideTheInstallerAreCopiedAndTheRestUnpacked)
{
    WriteFile("installergui.exe", "front end beside the installer");
    WriteFile("Libs/Codec.dll", "newer codec");
    WriteFile("quill.exe", "");
    EXPECT_EQ(ExtractFiles(), "");
    EXPECT_EQ(ReadTree(installDir),
        (QMap<QString, QByteArray>{{"uninst.exe", "front end beside the installer"},
            {"quill.exe", "program"}, {"empty.txt", ""}, {"Libs/Codec.dll", "newer codec"}}));

    const QStringList log = machine.Log();
    EXPECT_TRUE(log.contains("Start copying files: 36  bytes")) << log.join('\n').toStdString();
    EXPECT_TRUE(log.contains("Directory tree've been created"));
    EXPECT_TRUE(log.filter("Copied: 2  files, size: 41  elapsed time: ")
                    .filter(" ms  excluded: 2")
                    .size() == 1)
        << log.join('\n').toStdString();
    EXPECT_TRUE(log.contains("Extracting file is started to: " + Quoted(installDir)));
    EXPECT_EQ(log.last(), "Files are extracted");
}

TEST_F(FilePlacementTest, ReservedFilesAreCopiedBack)
{
    WriteFile("opengl32.dll", "reserved");
    EXPECT_EQ(ExtractFiles({"opengl32.dll"}), "");
    EXPECT_EQ(ReadFile(installDir + "opengl32.dll"), "reserved");
}

TEST_F(FilePlacementTest, SetupFolderMayBeTheInstallationFolder)
{
    WriteFile(installDir + "quill.exe", "program in place");
    QDir::setCurrent(installDir);
    EXPECT_EQ(ExtractFiles(), "");
    EXPECT_EQ(ReadFile(installDir + "quill.exe"), "program in place");
    EXPECT_EQ(ReadFile(installDir + "Libs/Codec.dll"), "codec");
}

TEST_F(FilePlacementTest, FolderThatCannotBeCreatedFails)
{
    WriteFile(machine.Path("apps/Vorlan Quillax"), "a file where the folder must be");
    EXPECT_EQ(ExtractFiles(),
        "Couldn't create directory " + QDir::fromNativeSeparators(installDir).chopped(1));
    EXPECT_TRUE(machine.Log().contains("Error: failed to create dir!"));
}

TEST_F(FilePlacementTest, FirstCopyErrorStopsSequentialCopying)
{
    WriteFile("quill.exe", "program beside the installer");
    QDir().mkpath(installDir + "quill.exe/occupied");
    const QString error = ExtractFiles();
    EXPECT_TRUE(error.startsWith("Failed to remove existing file from destination") ||
                error.startsWith("Failed to copy file quill.exe error "))
        << error.toStdString();
    EXPECT_EQ(signalLog.Calls(), QStringList("CopyFileError(quill.exe, " + error + ')'));
    EXPECT_TRUE(machine.Log().contains("Copy error: \"" + error + '"'));
    EXPECT_FALSE(QFile::exists(installDir + "Libs/Codec.dll"));
}

TEST_F(FilePlacementTest, ParallelCopyPlacesEveryFileOnce)
{
    std::vector<std::wstring> names = {L"", L"missing.dll", L"installergui.exe"};
    for (int i = 0; i < 50; ++i)
    {
        const QString file = QString("libs%1/file%2.dll").arg(i % 3).arg(i);
        WriteFile(file, QByteArray(1000 * i + 1, static_cast<char>('a' + i % 26)));
        names.push_back(Platform::WideFromText(file));
        QDir().mkpath(installDir + file.section('/', 0, 0));
    }
    names.insert(names.end(), 20, L"libs0/file0.dll"); // would meet in one file
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions("libs1/file1.dll", permissions);
    const int former = QThreadPool::globalInstance()->maxThreadCount();
    QThreadPool::globalInstance()->setMaxThreadCount(4);
    access.CopyInParallel(names, 8);
    EXPECT_EQ(QThreadPool::globalInstance()->maxThreadCount(), 8);
    access.CopyInParallel({}, 2);
    EXPECT_EQ(QThreadPool::globalInstance()->maxThreadCount(), 8);
    QThreadPool::globalInstance()->setMaxThreadCount(former);

    EXPECT_EQ(ReadTree(installDir), ReadTree("."));
    EXPECT_EQ(
        QFile::permissions(installDir + "libs1/file1.dll"), QFile::permissions("libs1/file1.dll"));
    EXPECT_EQ(machine.Log().filter("The pool parameter is changed to: 8").size(), 1);
    EXPECT_EQ(machine.Log().filter("Copy is completed, thread id: ").size(), 2);
}

TEST_F(FilePlacementTest, ParallelCopyStopsLaunchingAfterAnErrorAndReportsEachOnce)
{
    std::vector<std::wstring> names;
    for (int i = 0; i < 20; ++i)
    {
        WriteFile(QString("file%1").arg(i), "content");
        names.push_back(L"file" + std::to_wstring(i));
    }
    QDir().mkpath(installDir + "file0/occupied");
    try
    {
        access.CopyInParallel(names, 1);
        ADD_FAILURE() << "the error was lost";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_EQ(
            signalLog.Calls(), QStringList("CopyFileError(file0, " + QString(error.what()) + ')'));
    }
    EXPECT_EQ(ReadTree(installDir), (QMap<QString, QByteArray>()));
}

TEST(RunCopies, WhatACopyThrowsIsLoggedAndItsError)
{
    const Machine machine;
    const std::vector<CopyJob> jobs{{true, "a", "b", L"a"}, {true, "c", "d", L"c"}};
    QStringList errors;
    RunCopies(
        1, jobs,
        [&errors](const CopyJob&, const CopyFileOperationStatus& status)
        { errors += status.error; },
        [](const QString&, const QString&) -> CopyFileOperationStatus { throw std::bad_alloc(); });
    EXPECT_EQ(errors, QStringList("std::bad_alloc"));
    EXPECT_EQ(machine.Log(), QStringList("Copy exception: std::bad_alloc"));
}

TEST_F(FilePlacementTest, HostHearsOfNineCopyErrors)
{
    for (int i = 1; i <= 11; ++i)
        access.HandleCopyFileError(QString("file%1").arg(i), "reason");
    EXPECT_EQ(signalLog.Calls().size(), 9);
    EXPECT_EQ(signalLog.Calls().last(), "CopyFileError(file9, reason)");
    EXPECT_EQ(machine.Log().filter("Error on file"),
        QStringList({"Error on file  \"file10\" .  \"reason\"",
            "Error on file  \"file11\" .  \"reason\""}));
}

TEST_F(FilePlacementTest, ProgressComesWhenMoreThanTenMillisecondsHavePassed)
{
    QDateTime now = QDateTime::fromMSecsSinceEpoch(1000);
    ProgressThrottle throttle([&now] { return now; });
    const auto isDueAt = [&](qint64 time)
    {
        now = QDateTime::fromMSecsSinceEpoch(time);
        return throttle.IsDue();
    };
    EXPECT_FALSE(isDueAt(1000));
    EXPECT_FALSE(isDueAt(1010));
    EXPECT_TRUE(isDueAt(1011));
    EXPECT_FALSE(isDueAt(1021));
    EXPECT_TRUE(isDueAt(1022));
}

TEST_F(FilePlacementTest, NothingIsReservedWithoutAPreviousVersion)
{
    EXPECT_EQ(access.ReserveFilesForReinstall(), QStringList());
    StorePreviousVersion("x64");
    EXPECT_EQ(access.ReserveFilesForReinstall(), QStringList());
    EXPECT_EQ(machine.Log().filter("OpenGL"), QStringList());
}

TEST_F(FilePlacementTest, LibrariesOfTheSameArchitectureAreReserved)
{
    StorePreviousVersion("x64");
    WriteFile(machine.Path("old/libgallium_wgl.dll"), "library");
    const QString saved = QCoreApplication::applicationDirPath() + "/libgallium_wgl.dll";
    WriteFile(saved, "left by an earlier run");
    EXPECT_EQ(access.ReserveFilesForReinstall(), QStringList("libgallium_wgl.dll"));
    EXPECT_EQ(ReadFile(saved), "library");
    QFile::remove(saved);
    EXPECT_TRUE(machine.Log().contains("OpenGL library \"libgallium_wgl.dll\" of previous "
                                       "installation has been successfully reserved"));
}

TEST_F(FilePlacementTest, LibrariesOfAnotherArchitectureAreLeft)
{
    StorePreviousVersion("x86");
    WriteFile(machine.Path("old/libgallium_wgl.dll"), "library");
    EXPECT_EQ(access.ReserveFilesForReinstall(), QStringList());
    EXPECT_EQ(machine.Log().last(),
        "OpenGL libraries of previous installation are incompatible with current because of "
        "different bit capacity");
}

TEST_F(FilePlacementTest, ProgramDataMovesToTheAllUsersFolder)
{
    const QString target =
        GetStandardLocation(StandardLocation::CommonAppData) + "/vorlan/fonts.conf";
    WriteFile(target, "of an older version");
    WriteFile(installDir + "fonts.conf", "fonts");
    access.UpdateProgramData();
    EXPECT_EQ(ReadFile(target), "fonts");
    EXPECT_FALSE(QFile::exists(installDir + "fonts.conf"));
    EXPECT_EQ(machine.Log().last(), "Moved  " + Quoted(installDir + "fonts.conf") + "  to  " +
                                        Quoted(QDir::toNativeSeparators(target)) +
                                        "  successfully:  true");
    EXPECT_EQ(signalLog.Calls(), QStringList());
}

TEST_F(FilePlacementTest, ProgramDataThatCannotBeMovedIsReported)
{
    access.UpdateProgramData();
    EXPECT_EQ(signalLog.Calls(),
        QStringList("CopyFileError(fonts.conf, Failed to move file fonts.conf to "
                    "vorlan\\fonts.conf. Wrong path or no permission)"));
}
