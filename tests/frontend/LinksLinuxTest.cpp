#include "installer/Shortcuts.h"
#include "platform/System.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"
#include "support/SetupRun.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

// A link in a folder that runs change, to a file or a folder outside of it.
struct LinkPlace
{
    QString path;
    bool isFile;
};

class LinksTest : public testing::Test
{
protected:
    void SetUp() override
    {
        setup.AddArchiveContent(CreateArchive({{"installergui.exe", "lies beside the setup"},
            {ENGINE_FILE_NAME, "lies beside the setup"}, {"quill.exe", "program"},
            {"fonts.conf", "fonts"}, {"libs/codec.dll", "codec"}, {"libs/more/data.bin", "data"}}));
    }

    void Install()
    {
        const auto result = setup.Start({"/S"});
        ASSERT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }
    void Uninstall()
    {
        const auto result = setup.StartFrom(product, "uninst.exe", {"/S", "/DELETESETTINGS"});
        ASSERT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }

    void MakeLinks(const QList<LinkPlace>& places)
    {
        for (const LinkPlace& place : places)
        {
            const QString target = machine.Path(QString("outside/%1").arg(targets.size()));
            WriteFile(target + "/file.txt", "stays");
            EXPECT_TRUE(QDir().mkpath(QFileInfo(place.path).path()));
            EXPECT_TRUE(QFile::link(place.isFile ? target + "/file.txt" : target, place.path));
            targets[place.path] = target;
        }
    }

    void ExpectThatTargetsStay()
    {
        for (const QString& place : targets.keys())
        {
            EXPECT_TRUE(QFile::exists(targets[place] + "/file.txt")) << place.toStdString();
            EXPECT_EQ(ReadFile(targets[place] + "/file.txt"), "stays") << place.toStdString();
        }
    }

    Machine machine{Machine::Registry::OfStartedPrograms};
    SetupRun setup;
    const QString product = GetStandardLocation(StandardLocation::AppData) + "/Vorlan Quillax";
    const QString menu = GetStandardLocation(StandardLocation::Programs) + "/Vorlan Quillax";
    const QString desktop = GetStandardLocation(StandardLocation::Desktop);
    const QString allUsers = GetStandardLocation(StandardLocation::CommonAppData) + "/vorlan";
    QMap<QString, QString> targets; // key: path of the link
};

} // namespace

TEST_F(LinksTest, TargetsArePreserved)
{
    // Files and folders that the installation writes.
    MakeLinks({{product + "/quill.exe", true}, {product + "/uninst.exe", true},
        {product + "/fonts.conf", true}, {product + "/InstallerMessage.vbs", true},
        {product + "/Vorlan Quillax.url", true}, {product + "/libs/codec.dll", true},
        {product + "/libs/more", false}, {desktop + "/Vorlan Quillax.lnk", true},
        {menu + "/Vorlan Quillax.lnk", true}, {allUsers + "/fonts.conf", true}});
    Install();
    ExpectThatTargetsStay();
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec");
    EXPECT_EQ(ReadFile(targets[product + "/libs/more"] + "/data.bin"), "data") << "moved by a user";
    EXPECT_EQ(ReadFile(allUsers + "/fonts.conf"), "fonts");

    // Links next to files that the uninstallation deletes.
    for (const QString& folder : {product, product + "/libs", menu, menu + "/more", desktop,
             allUsers, Platform::LogFolder(), setup.TemporaryFolder()})
        MakeLinks({{folder + "/link", false}, {folder + "/link.txt", true}});
    Uninstall();
    ExpectThatTargetsStay();
    EXPECT_TRUE(QFileInfo(product + "/quill.exe").isSymLink()) << "what was there before";
    for (const QString& removed : {menu, Platform::LogFolder()})
        EXPECT_FALSE(QFileInfo(removed).exists() || QFileInfo(removed).isSymLink())
            << removed.toStdString();
}

TEST_F(LinksTest, OfFoldersThatAreLinksOnlyTheLinkIsRemoved)
{
    MakeLinks({{product, false}, {menu, false}, {allUsers, false}, {Platform::LogFolder(), false}});
    Install();
    EXPECT_EQ(ReadFile(product + "/libs/codec.dll"), "codec");
    Uninstall();
    targets.remove(product); // the target is the product's folder
    ExpectThatTargetsStay();
    EXPECT_FALSE(QFileInfo(menu).isSymLink());
    EXPECT_FALSE(QFileInfo(Platform::LogFolder()).isSymLink());
}
