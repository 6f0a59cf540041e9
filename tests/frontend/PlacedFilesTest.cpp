#include "PlacedFiles.h"

#include "KeptFiles.h"
#include "support/FolderLink.h"
#include "support/Machine.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;
using State = PlacedFiles::State;

namespace
{

class PlacedFilesTest : public testing::Test
{
protected:
    PlacedFilesTest()
    {
        for (const char* file : {"quill.exe", "libs/codec.dll", "libs/plug-in.dll", "my/film.avi"})
            WriteFile(folder + '/' + file, "12345");
    }

    static QStringList All(FolderContent content)
    {
        content.own.sort();
        content.foreign.sort();
        return {content.own.join(' '), content.ownFolders.join(' '), content.foreign.join(' ')};
    }

    const Machine machine;
    const QString folder = QDir::fromNativeSeparators(machine.Path("product"));
    const std::vector<PlacedFiles::File> files = {
        {"quill.exe", 5}, {"libs/codec.dll", 4}, {"libs/gone.dll", 1}};
};

TEST_F(PlacedFilesTest, TheContentIsSortedByTheList)
{
    ASSERT_TRUE(PlacedFiles(State::Complete, files).Write(folder));
    EXPECT_EQ(All(SortContent(folder, *PlacedFiles::Read(folder))),
        QStringList({"libs/codec.dll quill.exe", "libs", "libs/plug-in.dll my/"}));
    // After a run that was cut off, only what has the size in the list is ours.
    ASSERT_TRUE(PlacedFiles(State::Unfinished, files).Write(folder));
    EXPECT_EQ(All(SortContent(folder, *PlacedFiles::Read(folder))),
        QStringList({"quill.exe", "libs", "libs/codec.dll libs/plug-in.dll my/"}));
}

TEST_F(PlacedFilesTest, NeitherAListNorALinkLeadsOutOfTheFolder)
{
    WriteFile(machine.Path("outside/codec.dll"), "1234");
    const PlacedFiles hostile(
        State::Complete, {{"../outside/codec.dll", -1}, {"/etc/passwd", -1}, {"C:\\x", -1},
                             {"my/../quill.exe", -1}, {"", -1}});
    EXPECT_TRUE(hostile.Files().empty());
    if (!IsRemovalOfFoldersSafe())
        GTEST_SKIP() << "this system shows a link as a folder";
    ASSERT_TRUE(QDir(folder + "/libs").removeRecursively());
    MakeFolderLink(folder + "/libs", machine.Path("outside"));
    EXPECT_EQ(All(SortContent(folder, PlacedFiles(State::Complete, files))),
        QStringList({"quill.exe", "", "libs my/"}));
}

TEST_F(PlacedFilesTest, AListThatIsNotUnderstoodIsNone)
{
    EXPECT_FALSE(PlacedFiles::Read(folder));
    const QString list = folder + "/uninst.data/placed.txt";
    for (const char* text : {"", "placed files, format 2, complete\n5\tquill.exe\n",
             "placed files, format 1, complete\nquill.exe\n"})
    {
        WriteFile(list, text);
        EXPECT_FALSE(PlacedFiles::Read(folder)) << text;
    }
    WriteFile(list, "placed files, format 1, complete\n5\tquill.exe\n");
    EXPECT_TRUE(PlacedFiles::Read(folder)->Contains("quill.exe", 7));
    EXPECT_EQ(
        PlacedFiles::Read(folder)->Contains("QUILL.exe", 7), QSysInfo::kernelType() == "winnt");
}

TEST_F(PlacedFilesTest, KeptFilesComeBackAlsoAfterARunThatWasCutOff)
{
    const QStringList before = ListTree(folder);
    for (const KeepingPlace place : {KeepingPlace::Inside, KeepingPlace::Beside})
    {
        EXPECT_EQ(KeepFiles(folder, {"libs/plug-in.dll", "my/"}, place), "");
        EXPECT_FALSE(QFile::exists(folder + "/my"));
        EXPECT_EQ(ReturnKeptFiles(folder), QStringList());
        EXPECT_EQ(ListTree(folder), before);
    }
    // The folder has gone meanwhile.
    EXPECT_EQ(KeepFiles(folder, {"my/"}, KeepingPlace::Beside), "");
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_EQ(ReturnKeptFiles(folder), QStringList());
    EXPECT_EQ(ListTree(folder), QStringList({"my/", "my/film.avi"}));
    EXPECT_EQ(QDir(machine.Path("")).entryList({"product*"}), QStringList("product"));
}

TEST_F(PlacedFilesTest, AKeptFileWhoseNameIsTakenStaysAway)
{
    EXPECT_EQ(KeepFiles(folder, {"libs/plug-in.dll", "my/"}, KeepingPlace::Inside), "");
    WriteFile(folder + "/libs/plug-in.dll", "of the new version");
    EXPECT_EQ(ReturnKeptFiles(folder), QStringList(folder + "/uninst.kept/libs/plug-in.dll"));
    EXPECT_EQ(ReadFile(folder + "/libs/plug-in.dll"), "of the new version");
    EXPECT_TRUE(QFile::exists(folder + "/my/film.avi"));
}

TEST_F(PlacedFilesTest, WhatCannotBeKeptIsNamedAndNothingIsMoved)
{
    const QStringList before = ListTree(folder);
    for (const KeepingPlace place : {KeepingPlace::Inside, KeepingPlace::Beside})
        EXPECT_EQ(KeepFiles(folder, {"my/", "missing.txt"}, place), "missing.txt");
    EXPECT_EQ(ListTree(folder), before);
}

} // namespace
