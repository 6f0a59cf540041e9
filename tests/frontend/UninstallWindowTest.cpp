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
        EXPECT_TRUE(QFile::copy(setup.SetupFolder() + "/uninstall-by-buttons.exe",
            folder + "/uninstall-by-buttons.exe"));
        const auto result = setup.StartFrom(
            folder, "uninstall-by-buttons.exe", words + QStringList{"-platform", "offscreen"});
        return result.output.split('\n', Qt::SkipEmptyParts);
    }
};

TEST_F(UninstallWindowTest, TheButtonsLeadToTheLastPage)
{
    InstallCurrent();
    EXPECT_EQ(PressButtons(product),
        QStringList({"uninstallStartPage", "progressPage", "resultPage", "0"}));
    EXPECT_EQ(Links(), QStringList());
    EXPECT_FALSE(QFile::exists(product + "/quill.exe"));
}

TEST_F(UninstallWindowTest, ProgramsThatUseTheFilesAreClosedFirst)
{
    InstallCurrent();
    ChildProgram player(product + "/libs/player.exe", "wait");
    player.Start();
    const QStringList seen = PressButtons(product, {"yes"});
    EXPECT_EQ(seen.count("inUsePage"), 1) << qPrintable(seen.join('|'));
    EXPECT_EQ(seen.mid(seen.size() - 2), QStringList({"resultPage", "0"}));
    EXPECT_TRUE(player.HasEnded());
}

TEST_F(UninstallWindowTest, DependentProgramsAreShownInABoxAndTheUserCanCancel)
{
    InstallCurrent();
    RegistrySettings(QSettings::UserScope, "Vorlan", "Foo1").setValue("ParentProductId", "quillax");
    const QStringList seen = PressButtons(product);
    ASSERT_EQ(seen.filter("first uninstall these programs:").size(), 1)
        << qPrintable(seen.join('|'));
    EXPECT_EQ(seen.mid(seen.size() - 2), QStringList({"uninstallStartPage", "1051"}));
    EXPECT_TRUE(QFile::exists(product + "/quill.exe"));
}

TEST_F(UninstallWindowTest, AnotherFolderIsDeletedOnlyAfterConfirmation)
{
    InstallCurrent();
    const QString copy = machine.Path("copy");
    for (const bool isAgreeing : {false, true})
    {
        WriteFile(copy + "/thesis.txt", "years of work");
        QFile::remove(copy + "/uninstall-by-buttons.exe");
        QFile::copy(product + "/" ENGINE_FILE_NAME, copy + "/" ENGINE_FILE_NAME);
        const QStringList seen = PressButtons(copy, {isAgreeing ? "yes" : "no"});
        EXPECT_TRUE(seen.value(0).contains("Delete the files beside this program all the same?"));
        EXPECT_EQ(seen.last(), QString(isAgreeing ? "0" : "1602"));
        EXPECT_NE(QFile::exists(copy + "/thesis.txt"), isAgreeing);
    }
}

// The registered folder has the name of another program, whose records stay.
TEST_F(UninstallWindowTest, RecordsOfAnotherProgramAreNotRemoved)
{
    InstallCurrent();
    const QString foo = machine.Path("Foo");
    QDir().mkpath(foo);
    ASSERT_TRUE(QFile::copy(product + "/" ENGINE_FILE_NAME, foo + "/" ENGINE_FILE_NAME));
    const QString list =
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
    RegistrySettings(list + "\\Foo").setValue("DisplayVersion", "1.0");
    RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24")
        .setValue("Path", foo + QDir::separator());
    const QStringList seen = PressButtons(foo, {"yes"});
    EXPECT_TRUE(seen.value(0).contains("is not Vorlan Quillax")) << qPrintable(seen.join('|'));
    EXPECT_EQ(seen.last(), "0");
    EXPECT_EQ(Entry(), QStringList("Foo: DisplayVersion = REG_SZ 1.0"));
    RegistrySettings(list + "\\Foo").remove(QString());
}

} // namespace
