// The script that deletes what an uninstallation has moved out of the product's folder.
#include "support/DeletionScript.h"
#include "support/FolderLink.h"
#include "support/Machine.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

const QString identity = "0123abcd";
const char notMarked[] = "not marked for removal";

// A product's folder, what was moved out of it, and a neighbour.
class DelayedDeleteTest : public testing::Test
{
protected:
    DelayedDeleteTest()
    {
        WriteFile(folder + "/quill.exe", "placed");
        WriteFile(folder + ".0123abcd/libs/codec.dll", "in use");
        WriteFile(folder + ".0123abce/file", "of somebody else");
    }

    QStringList Folders() const
    {
        return QDir(apps).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QString RefusalOf(const QString& product, const QString& removal) const
    {
        const QTemporaryDir own;
        DeletionScript script(own.path());
        script.Start(product, removal);
        return script.WaitForRefusal();
    }

    const Machine machine;
    const QString apps = QDir::fromNativeSeparators(machine.Path("apps (x86) & Söhne"));
    const QString folder = apps + "/Vorlan Quillax";
};

TEST_F(DelayedDeleteTest, OnlyTheFolderOfThisRemovalIsDeleted)
{
    const QStringList others = {"Vorlan Quillax", "Vorlan Quillax.0123abce"};
    EXPECT_EQ(RefusalOf(folder, identity), "");
    EXPECT_EQ(Folders(), others);
    for (const char* other : {"", ".", "0123abcd", "../Vorlan Quillax", "x/../../Vorlan Quillax"})
    {
        EXPECT_EQ(RefusalOf(folder, other), notMarked) << other;
    }
    EXPECT_EQ(Folders(), others);
    EXPECT_EQ(RefusalOf("relative", identity), "no absolute path");
    EXPECT_EQ(RefusalOf(QSysInfo::kernelType() == "winnt" ? "C:\\" : "/", identity), "a root");
    EXPECT_TRUE(QFile::exists(folder + "/quill.exe"));
}

TEST_F(DelayedDeleteTest, AFolderThatIsInstalledDuringTheDelayIsNotTouched)
{
    QDir(folder).removeRecursively();
    const QTemporaryDir own;
    DeletionScript script(own.path(), DeletionScript::Waiting::UntilWoken);
    script.Start(folder, identity);
    script.WaitForDelay();
    WriteFile(folder + "/quill.exe", "of the next version");
    script.Wake();
    EXPECT_EQ(script.WaitForRefusal(), "");
    EXPECT_EQ(ReadFile(folder + "/quill.exe"), "of the next version");
    EXPECT_EQ(Folders(), QStringList({"Vorlan Quillax", "Vorlan Quillax.0123abce"}));
}

TEST_F(DelayedDeleteTest, TargetsOfLinksStay)
{
    if (!IsRemovalOfFoldersSafe())
        GTEST_SKIP() << "this system shows a link as a folder";
    WriteFile(machine.Path("outside/thesis.txt"), "years of work");
    MakeFolderLink(folder + ".0123abcd/link", machine.Path("outside"));
    EXPECT_EQ(RefusalOf(folder, identity), "");
    MakeFolderLink(folder + ".0123abcd", machine.Path("outside"));
    EXPECT_EQ(RefusalOf(folder, identity), notMarked);
    EXPECT_TRUE(QFile::exists(machine.Path("outside/thesis.txt")));
}

TEST_F(DelayedDeleteTest, TheBatchFileHasTheLineEndsOfWindows)
{
    const QByteArray text = ReadFile(FRONTEND_SOURCES "/resources/Batch/uninstallDelayedDir.bat");
    EXPECT_EQ(text.count('\n'), text.count("\r\n")) << "labels are not found otherwise";
}

} // namespace
