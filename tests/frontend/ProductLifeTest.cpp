// The life of a product on one machine, with the front end that people start: what is on the disk
// and in the registry after each step.
#include "registry/RegistrySettings.h"
#include "support/ChildProgram.h"
#include "support/InstalledProduct.h"

#include <QDir>
#include <QFile>

using namespace Vorlan;

namespace
{

class ProductLifeTest : public InstalledProduct
{
protected:
    // The version in the list of programs, the number of verbs, the links and the files.
    QString State() const
    {
        const QString entry = RegistryTree("HKEY_LOCAL_MACHINE",
            "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Vorlan Quillax")
                                  .filter("DisplayVersion")
                                  .join(' ')
                                  .section(' ', -1);
        const auto verbs =
            RegistryTree("HKEY_LOCAL_MACHINE", "Software\\Classes\\SystemFileAssociations")
                .filter("\\Command: @")
                .size();
        QStringList files = ListTree(folder);
        for (const QString& common :
            files.filter(QRegularExpression("/$|^resources/|^uninst.data/|" ENGINE_FILE_NAME)))
            files.removeAll(common);
        return QString("%1, %2 verbs, %3 links: %4")
            .arg(entry)
            .arg(verbs)
            .arg(LinksOfAll().size())
            .arg(files.join(' '));
    }

    static QStringList LinksOfAll()
    {
        return ListTree(GetStandardLocation(StandardLocation::CommonPrograms))
                   .filter("Vorlan Quillax/Vorlan") +
               ListTree(GetStandardLocation(StandardLocation::CommonDesktop)).filter("Quillax.lnk");
    }

    const QString folder = machine.Path("Apps/Vorlan Quillax");
};

TEST_F(ProductLifeTest, EachStepLeavesWhatItPromises)
{
    setup.AddProgram(translation);
    Install(QString(FRONTEND_FOLDER) + "/24.4.0", "old",
        {"/ALLUSERS", "/D=" + machine.Path("Apps"), "/CONTEXTMENU"});
    const QString placed = " InstallerMessage.vbs Vorlan Quillax.url libs/codec.dll ";
    EXPECT_EQ(State(), "24.4.0, 64 verbs, 2 links:" + placed + "old.txt quill.exe uninst.exe");

    WriteFile(folder + "/my video.avi", "of the person");
    Install(FRONTEND_FOLDER, "new", {});
    const QString updated =
        "24.5.1, 64 verbs, 2 links:" + placed + "my video.avi new.txt quill.exe uninst.exe";
    EXPECT_EQ(State(), updated) << "an update, with what was chosen";

    WriteFile(folder + "/libs/codec.dll", "damaged");
    ASSERT_TRUE(QFile::remove(folder + "/quill.exe"));
    Install(FRONTEND_FOLDER, "new", {});
    EXPECT_EQ(State(), updated) << "a repair";
    EXPECT_EQ(ReadFile(folder + "/libs/codec.dll"), "codec of new");

    ChildProgram player(folder + "/libs/player.exe", "wait");
    player.Start();
    const QString before = State();
    for (const auto& refused : {setup.Start({"/S"}), setup.StartFrom(folder, "uninst.exe", {"/S"})})
    {
        EXPECT_EQ(refused.exitCode, SetupRun::ShownExitCode(32));
        EXPECT_TRUE(refused.errors.contains("player.exe (" + QString::number(player.Id()) + ')'))
            << refused.errors.toStdString();
        EXPECT_EQ(State(), before) << "a held file";
    }

    const auto removed = setup.StartFrom(folder, "uninst.exe", {"/S", "/CLOSEAPPS"});
    EXPECT_EQ(removed.exitCode, 0) << removed.errors.toStdString();
    EXPECT_TRUE(player.HasEnded());
    EXPECT_EQ(LeftBeside(folder), QStringList("Vorlan Quillax"));
    EXPECT_EQ(State().section(" libs/player.exe.args", 0, 0) + State().section(".does", 1),
        ", 0 verbs, 0 links: libs/player.exe my video.avi")
        << "only what is not of the program";
}

} // namespace
