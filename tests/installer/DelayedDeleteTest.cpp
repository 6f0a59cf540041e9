#include "RemovalGuard.h"
#include "RemovalMark.h"
#include "support/DeletionScript.h"
#include "support/Environment.h"
#include "support/FolderLink.h"
#include "support/Machine.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

using namespace Vorlan::FrontEnd;

namespace
{

const bool isWindows = QSysInfo::kernelType() == "winnt";
const QString identity = "0123abcd";
const QString markOfRemoval = "/uninst.unfinished/" + identity;

struct FolderCase
{
    const char* folder; // below the machine's folder, or absolute
    const char* objection = "";
    bool isOnlyWindows = false;
};

const char home[] = "a home folder";
const char ofSystem[] = "a folder of the system";

const FolderCase folderCases[] = {
    {"Elsewhere/Vorlan Quillax"},
    {"Elsewhere/Vorlan Quillax/"},
    {"Elsewhere (x86) & Söhne/Vorlan Quillax"},
    {"Temp/Vorlan Quillax"},
    {"Users/me/Desktop/Vorlan Quillax"},
    {"Users/me/AppData/Roaming/Vorlan Quillax"},
    {"Program Files/Vorlan Quillax"},
    {"", ofSystem}, // it contains the temporary folder
    {"Temp", ofSystem},
    {"Temp/", ofSystem},
    {"Elsewhere/../Temp/.", ofSystem},
    {"Users", home},
    {"Users/", home},
    {"Users/me", home},
    {"Users/me/", home},
    {"Users/other", home},
    {"Users/me/Desktop", home},
    {"Windows", ofSystem, true},
    {"WINDOWS/", ofSystem, true},
    {"Windows/System32/Vorlan Quillax", ofSystem, true},
    {"Program Files", ofSystem, true},
    {"program files\\", ofSystem, true},
    {"ProgramData", ofSystem, true},
    {"Users/me/AppData", home, true},
    {"Users/me/AppData/Roaming/", home, true},
    {"file", "no folder"},
    {"missing", "no folder"},
};

// Each folder of the table has files and the mark, so that only a guard saves it.
void MakeFolders(const QString& top)
{
    for (const FolderCase& folder : folderCases)
    {
        if (QString(folder.objection) != "no folder")
            WriteFile(
                QDir::cleanPath(top + QString(folder.folder).replace('\\', '/')) + markOfRemoval,
                "removal");
    }
    WriteFile(top + "Elsewhere/Vorlan Quillax/libs/deep/file", "goes");
    WriteFile(top + "file", "stays");
}

bool IsForThisSystem(const FolderCase& folder)
{
    return isWindows || !folder.isOnlyWindows;
}

// What is below the folder, except the script and the notes of the program with which it waits.
QStringList Left(const QString& top)
{
    return ListTree(top).filter(QRegularExpression("^(?!.*\\.args$|script\\.)"));
}

QStringList Without(const QStringList& names, const QString& folder)
{
    return names.filter(
        QRegularExpression("^(?!" + QRegularExpression::escape(QDir::cleanPath(folder)) + "/)"));
}

const char notMarked[] = "not marked for this removal";
const QStringList placed = {"libs/", "libs/codec.dll"};

// An installed product's folder.
class PendingRemoval : public testing::Test
{
protected:
    PendingRemoval() { WriteFile(folder + "/libs/codec.dll", "placed"); }

    const Machine machine;
    const Environment variable{"VORLAN_REMOVAL", QString()};
    const QString apps = QDir::fromNativeSeparators(machine.Path("apps"));
    const QString folder = apps + "/Vorlan Quillax";
};

} // namespace

TEST(DelayedDelete, TheScriptRefusesFoldersThatBelongToOthers)
{
    for (const FolderCase& row : folderCases)
    {
        if (!IsForThisSystem(row))
            continue;
        SCOPED_TRACE(row.folder);
        const Machine machine;
        const QString top = QDir::fromNativeSeparators(machine.Path("")) + '/';
        MakeFolders(top);
        DeletionScript script(machine.Path(""));
        const QStringList before = Left(top);
        script.Start(top + row.folder, identity);
        EXPECT_EQ(script.WaitForRefusal(), QString(row.objection));
        EXPECT_EQ(Left(top), *row.objection ? before : Without(before, row.folder));
    }
}

TEST(DelayedDelete, TheFrontEndRefusesTheSameFoldersBeforeTheRun)
{
    const Machine machine;
    const QString top = QDir::fromNativeSeparators(machine.Path("")) + '/';
    MakeFolders(top);
    const Environment variables[] = {
        {"HOME", top + "Users/me"},
        {"TMPDIR", top + "Temp"},
        {"TEMP", top + "Temp"},
        {"TMP", top + "Temp"},
        {"SystemRoot", top + "Windows"},
        {"ProgramFiles", top + "Program Files"},
        {"ProgramData", top + "ProgramData"},
        {"USERPROFILE", top + "Users/me"},
        {"APPDATA", top + "Users/me/AppData/Roaming"},
    };
    for (const FolderCase& row : folderCases)
    {
        if (!IsForThisSystem(row))
            continue;
        EXPECT_EQ(FindRemovalObjection(top + row.folder), QString(row.objection)) << row.folder;
    }
}

// None of these has a mark, so that a guard that fails deletes nothing.
TEST(DelayedDelete, RootsLinksAndRelativePathsAreRefused)
{
    const Machine machine;
    WriteFile(machine.Path("outside/Vorlan Quillax/file"), "stays");
    std::vector<std::pair<QString, QString>> rows = {
        {"", "no absolute path"}, {"relative", "no absolute path"}, {"C:", "no absolute path"}};
    for (const char* root : {"C:/", "C:\\", "C:/.", "c://"})
        rows.emplace_back(isWindows ? root : "/", "a root");
    if (IsRemovalOfFoldersSafe()) // else Wine, which shows a link as a folder
    {
        MakeFolderLink(machine.Path("Vorlan Quillax"), machine.Path("outside/Vorlan Quillax"));
        for (const char* end : {"", "/", "//", "/."})
            rows.emplace_back(machine.Path("Vorlan Quillax") + end, "a link");
    }
    for (const auto& [folder, objection] : rows)
    {
        SCOPED_TRACE(folder.toStdString());
        const QTemporaryDir own;
        DeletionScript script(own.path());
        script.Start(folder, identity);
        EXPECT_EQ(script.WaitForRefusal(), objection);
        EXPECT_EQ(FindRemovalObjection(folder), objection);
    }
    EXPECT_TRUE(QFile::exists(machine.Path("outside/Vorlan Quillax/file")));
}

TEST(DelayedDelete, TheBatchFileHasTheLineEndsOfWindows)
{
    const QByteArray text = ReadFile(FRONTEND_SOURCES "/resources/Batch/uninstallDelayedDir.bat");
    EXPECT_EQ(text.count('\n'), text.count("\r\n")) << "labels are not found otherwise";
}

TEST_F(PendingRemoval, OnlyWhatIsStillMarkedWhenTheScriptWakesIsRemoved)
{
    // What happens between the start of the script and the end of its delay.
    const QString inside = folder + "/deeper/Vorlan Quillax";
    const struct
    {
        const char* name;
        std::function<void(const RemovalMark&)> event;
        const char* refusal;
        QStringList left;
    } moments[] = {
        {"nothing", [](const RemovalMark&) {}, "", {}},
        {"an installation into another folder",
            [&](const RemovalMark&) { EXPECT_TRUE(CancelRemovals(folder + " 2")); }, "", {}},
        {"an installation", [&](const RemovalMark&) { EXPECT_TRUE(CancelRemovals(folder)); },
            notMarked, placed},
        {"an installation inside the folder",
            [&](const RemovalMark&) { EXPECT_TRUE(CancelRemovals(inside)); }, notMarked, placed},
        {"an installation and another removal",
            [&](const RemovalMark&)
            {
                EXPECT_TRUE(CancelRemovals(folder));
                EXPECT_TRUE(RemovalMark(folder, true).IsComplete());
            },
            notMarked, placed + QStringList{"uninst.unfinished/", "uninst.unfinished/<identity>"}},
        {"another removal, which leaves the folder",
            [&](const RemovalMark&) { RemovalMark(folder, false).Finish(); }, notMarked, placed},
        {"the removal is refused", [](const RemovalMark& mark) { mark.Finish(); }, notMarked,
            placed},
        {"the removal by hand", [&](const RemovalMark&) { QDir(folder).removeRecursively(); },
            notMarked, {}},
    };
    for (const auto& moment : moments)
    {
        SCOPED_TRACE(moment.name);
        WriteFile(folder + "/libs/codec.dll", "placed");
        const RemovalMark mark(folder, true);
        ASSERT_TRUE(mark.IsComplete());
        const QTemporaryDir own;
        DeletionScript script(own.path(), DeletionScript::Waiting::UntilWoken);
        script.Start(folder, qEnvironmentVariable("VORLAN_REMOVAL"));
        script.WaitForDelay();
        moment.event(mark);
        script.Wake();
        EXPECT_EQ(script.WaitForRefusal(), QString(moment.refusal));
        EXPECT_EQ(
            ListTree(folder).replaceInStrings(QRegularExpression("[0-9a-f]{8}$"), "<identity>"),
            moment.left);
        EXPECT_EQ(QDir(apps).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            moment.left.isEmpty() ? QStringList() : QStringList("Vorlan Quillax"));
    }
}

TEST_F(PendingRemoval, WithoutTheIdentityOfThisRemovalNothingIsRemoved)
{
    const RemovalMark mark(folder, true);
    for (const char* other : {"", "0123abcd", "."})
    {
        const QTemporaryDir own;
        DeletionScript script(own.path());
        script.Start(folder, other);
        EXPECT_EQ(script.WaitForRefusal(), QString(notMarked)) << other;
    }
    EXPECT_TRUE(mark.IsComplete());
}

// The script gives the folder another name before it deletes anything. Here that name is taken.
TEST_F(PendingRemoval, AFolderThatCannotBeRenamedStaysWholeAndMarked)
{
    const RemovalMark mark(folder, true);
    const QString aside = folder + '.' + qEnvironmentVariable("VORLAN_REMOVAL");
    WriteFile(aside, "of somebody else");
    const QStringList before = ListTree(apps);
    DeletionScript script(machine.Path(""));
    script.Start(folder, qEnvironmentVariable("VORLAN_REMOVAL"));
    EXPECT_EQ(script.WaitForRefusal(), QString("in use"));
    EXPECT_EQ(ListTree(apps), before);
    EXPECT_TRUE(mark.IsComplete());
}

TEST_F(PendingRemoval, AnInstallationWaitsForAScriptThatRenamesTheFolder)
{
    const QString mark = folder + "/uninst.unfinished/";
    const QString claim = mark + "0123abcd.claimed";
    int waits = 0;
    WriteFile(claim, "removal");
    EXPECT_TRUE(CancelRemovals(folder + "/libs",
        [&]
        {
            if (++waits == 3)
                QDir().rename(folder, folder + ".0123abcd");
        }));
    EXPECT_EQ(waits, 3);
    EXPECT_TRUE(QFile::exists(folder + ".0123abcd/uninst.unfinished/0123abcd.claimed"));

    WriteFile(claim, "removal");
    EXPECT_TRUE(CancelRemovals(folder, [&] { QFile::rename(claim, mark + "0123abcd"); }));
    EXPECT_FALSE(QDir(mark).exists());

    WriteFile(claim, "removal");
    waits = 0;
    EXPECT_FALSE(CancelRemovals(folder, [&] { ++waits; }));
    EXPECT_EQ(waits, 100);
    EXPECT_TRUE(QFile::exists(claim));
}

TEST_F(PendingRemoval, AnInstallationWaitsForTheScriptOfAnOlderVersion)
{
    const Environment temporary[] = {{"TMPDIR", apps}, {"TMP", apps}, {"TEMP", apps}};
    const QByteArray older =
        "@echo off\r\nrem Removes one folder with everything in it after a delay,";
    const struct
    {
        const char* name;
        QByteArray content;
        int age; // s
        int waits;
    } files[] = {
        {"{01234567-89ab-cdef-0123-456789abcdef}.bat", older, 0, 100},
        {"{01234567-89ab-cdef-0123-456789abcdef}.bat", older, 120, 0},
        {"{01234567-89ab-cdef-0123-456789abcdef}.bat", older + "set mark=uninst.unfinished", 0, 0},
        {"{01234567-89ab-cdef-0123-456789abcdef}.bat", "@echo off", 0, 0},
        {"build.bat", older, 0, 0},
    };
    for (const auto& file : files)
    {
        const QString path = apps + '/' + file.name;
        WriteFile(path, file.content);
        QFile script(path);
        ASSERT_TRUE(script.open(QIODevice::ReadWrite));
        script.setFileTime(
            QDateTime::currentDateTime().addSecs(-file.age), QFileDevice::FileModificationTime);
        script.close();
        int waits = 0;
        EXPECT_EQ(CancelRemovals(folder, [&] { ++waits; }), file.waits == 0) << file.name;
        EXPECT_EQ(waits, file.waits) << file.content.constData();
        waits = 0;
        EXPECT_TRUE(CancelRemovals(folder,
            [&]
            {
                if (++waits == 3)
                    script.remove();
            }));
        EXPECT_EQ(waits, file.waits == 0 ? 0 : 3);
        script.remove();
    }
}

TEST_F(PendingRemoval, OtherFilesInTheMarkAreNotDeleted)
{
    const QStringList names = {"0123abcd.txt", "0123abcde", "notes.txt"};
    for (const QString& name : names)
        WriteFile(folder + "/uninst.unfinished/" + name, "of somebody else");
    EXPECT_TRUE(CancelRemovals(folder));
    EXPECT_EQ(QDir(folder + "/uninst.unfinished").entryList(QDir::Files), names);
}
