#include "registry/RegistrySettings.h"
#include "support/ChildProgram.h"
#include "support/InstalledProduct.h"

using namespace Vorlan;

namespace
{

// The program that clicks the buttons is in the product's folder instead of the uninstaller.
class UninstallWindowTest : public InstalledProduct
{
protected:
    UninstallWindowTest() { setup.AddProgram("uninstall-by-buttons.exe"); }

    // The pages and boxes that it reports, in the product's folder or in another one.
    QStringList PressButtons(const QString& folder, const QStringList& words = {})
    {
        QFile::copy(setup.SetupFolder() + "/uninstall-by-buttons.exe",
            folder + "/uninstall-by-buttons.exe");
        const auto result = setup.StartFrom(
            folder, "uninstall-by-buttons.exe", words + QStringList{"-platform", "offscreen"});
        return result.output.split('\n', Qt::SkipEmptyParts);
    }

    // The folder that is registered for all users; empty if there is none.
    static QString ForAllUsers()
    {
        return RegistryTree("HKEY_LOCAL_MACHINE", "Software\\Vorlan\\Quillax24")
            .filter(": Path = ")
            .value(0)
            .section("REG_SZ ", 1);
    }
};

TEST_F(UninstallWindowTest, TheButtonsLeadToTheLastPage)
{
    InstallCurrent();
    EXPECT_EQ(
        PressButtons(product), QStringList({"uninstallStartPage uninstall-by-buttons.exe",
                                   "progressPage", "resultPage uninstall-by-buttons.exe", "0"}));
    EXPECT_EQ(Links(), QStringList());
    EXPECT_FALSE(QFile::exists(product + "/quill.exe"));
}

TEST_F(UninstallWindowTest, ProgramsThatUseTheFilesAreClosedFirst)
{
    InstallCurrent();
    ChildProgram player(product + "/libs/player.exe", "wait");
    player.Start();
    const QStringList seen = PressButtons(product);
    EXPECT_EQ(seen.count("inUsePage"), 1) << qPrintable(seen.join('|'));
    EXPECT_EQ(seen.filter(QRegularExpression("^resultPage")).size(), 1);
    EXPECT_EQ(seen.last(), "0");
    EXPECT_TRUE(player.HasEnded());
}

TEST_F(UninstallWindowTest, DependentProgramsAreShownInABoxAndTheUserCanCancel)
{
    InstallCurrent();
    RegistrySettings(QSettings::UserScope, "Vorlan", "Foo1").setValue("ParentProductId", "quillax");
    const QStringList seen = PressButtons(product);
    ASSERT_EQ(seen.filter("first uninstall these programs:").size(), 1)
        << qPrintable(seen.join('|'));
    EXPECT_EQ(seen.last(), "1051");
    EXPECT_TRUE(QFile::exists(product + "/quill.exe"));
}

// The list makes exact what is deleted in a copy; the installation elsewhere is not changed.
TEST_F(UninstallWindowTest, OfACopyOnlyItsOwnFilesAreDeletedAndTheInstallationStays)
{
    InstallCurrent();
    const QStringList records = Records();
    const QString copy = machine.Path("copy");
    for (const QString& file : ListTree(product).filter(QRegularExpression("[^/]$")))
    {
        QDir().mkpath(QFileInfo(copy + '/' + file).path());
        ASSERT_TRUE(QFile::copy(product + '/' + file, copy + '/' + file));
    }
    WriteFile(copy + "/thesis.txt", "years of work");
    const QStringList closed = PressButtons(copy, {"no"});
    EXPECT_EQ(closed, QStringList({"otherFolderPage &Delete 8 files", "1602"}));
    QFile::remove(copy + "/uninstall-by-buttons.exe");
    QStringList seen = PressButtons(copy);
    seen.removeAll("progressPage"); // short
    EXPECT_EQ(seen, QStringList({"otherFolderPage &Delete 8 files",
                        "resultPage thesis.txt uninstall-by-buttons.exe", "0"}));
    EXPECT_EQ(ListTree(copy), QStringList({"thesis.txt", "uninstall-by-buttons.exe"}));
    EXPECT_EQ(Files(), installedFiles);
    EXPECT_EQ(Records(), records);
    EXPECT_EQ(Links(), allLinks);
}

// A setup in a folder of downloads deletes nothing there, whatever it is asked.
TEST_F(UninstallWindowTest, InAFolderWithoutAListNothingCanBeDeleted)
{
    InstallCurrent();
    const QString downloads = machine.Path("downloads");
    WriteFile(downloads + "/thesis.txt", "years of work");
    ASSERT_TRUE(QFile::copy(product + "/" ENGINE_FILE_NAME, downloads + "/" ENGINE_FILE_NAME));
    const QStringList seen = PressButtons(downloads);
    EXPECT_EQ(seen, QStringList({"otherFolderPage", "1602"}));
    EXPECT_TRUE(QFile::exists(downloads + "/thesis.txt"));
}

TEST_F(UninstallWindowTest, WhatIsNotOfTheProgramIsShownBeforeAndAfter)
{
    InstallCurrent();
    WriteFile(product + "/my/film.avi", "of the person");
    const QStringList seen = PressButtons(product);
    EXPECT_EQ(seen, QStringList({"uninstallStartPage my/ uninstall-by-buttons.exe", "progressPage",
                        "resultPage my/ uninstall-by-buttons.exe", "0"}));
    EXPECT_TRUE(QFile::exists(product + "/my/film.avi"));
    InstallCurrent();
    EXPECT_EQ(PressButtons(product, {"everything"}).value(0),
        "uninstallStartPage my/ uninstall-by-buttons.exe");
    EXPECT_FALSE(QDir(product).exists()) << "a window removes as much as a silent run";
}

// Every page of the process that the user has started, while another one has the rights.
TEST_F(UninstallWindowTest, ForAllUsersTheWindowsShowWhatTheElevatedProcessDoes)
{
    if (QSysInfo::kernelType() == "winnt")
        GTEST_SKIP() << "a program cannot take its own rights away here";
    const QString machineFile = setup.MachineFolder() + "/machine.ini";
    const QString start = "uninstallStartPage uninstall-by-buttons.exe";
    setup.AddArchiveContent(Product(FRONTEND_FOLDER, "new"));
    WriteFile(machineFile, "rights=request\n");
    for (const char* wish : {"install", "passive"})
    {
        EXPECT_EQ(PressButtons(setup.SetupFolder(), {wish}).join('|').remove("startPage|"),
            QString(wish) == "install" ? "progressPage|resultPage|0" : "progressPage|0");
        const QString folder = ForAllUsers();
        ASSERT_TRUE(QFile::exists(folder + "/quill.exe")) << wish;
        WriteFile(machineFile, "rights=refused\n");
        const QStringList refused = PressButtons(folder);
        EXPECT_EQ(refused.filter("start the uninstaller as one").size(), 1);
        EXPECT_EQ(refused.last(), "1602");
        EXPECT_TRUE(QFile::exists(folder + "/quill.exe"));
        WriteFile(machineFile, "rights=request\n");
        EXPECT_EQ(PressButtons(folder),
            QStringList({start, "progressPage", "resultPage uninstall-by-buttons.exe", "0"}));
        EXPECT_FALSE(QFile::exists(folder + "/quill.exe"));
        EXPECT_EQ(ForAllUsers(), QString());
    }
}

} // namespace
