#include "installer/Shortcuts.h"

#include "base/Com.h"
#include "platform/Path.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <shlobj.h>

using namespace Vorlan;

namespace
{

struct LinkContent
{
    QString target;
    QString workingFolder;
    QString arguments;
};

// What the system's own reader finds in a shell link.
LinkContent ReadLink(const QString& path)
{
    LinkContent content;
    Platform::ComApartment apartment;
    EXPECT_TRUE(apartment.Initialise());
    Platform::ComPointer<IShellLinkW> link;
    Platform::ComPointer<IPersistFile> file;
    EXPECT_EQ(CoCreateInstance(
                  CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.Put()),
        S_OK);
    EXPECT_EQ(link->QueryInterface(IID_IPersistFile, file.Put()), S_OK);
    EXPECT_EQ(file->Load(Platform::WideFromText(path).c_str(), STGM_READ), S_OK)
        << path.toStdString();
    wchar_t text[MAX_PATH] = {};
    EXPECT_EQ(link->GetPath(text, MAX_PATH, nullptr, SLGP_RAWPATH), S_OK);
    content.target = Platform::TextFromWide(text);
    EXPECT_EQ(link->GetWorkingDirectory(text, MAX_PATH), S_OK);
    content.workingFolder = Platform::TextFromWide(text);
    EXPECT_EQ(link->GetArguments(text, MAX_PATH), S_OK);
    content.arguments = Platform::TextFromWide(text);
    return content;
}

QString Backslashes(QString path)
{
    return path.replace('/', '\\');
}

class ShortcutsTest : public testing::Test
{
protected:
    ShortcutsTest()
    {
        QDir().mkpath(installDir);
        access.Settings().installDir = installDir;
    }

    static QStringList Links(StandardLocation location)
    {
        return ListTree(GetStandardLocation(location));
    }

    Machine machine;
    const QString name = "setup.exe";
    const QString installDir = machine.Path("apps/Vorlan Quillax/");
    InstallerMediator mediator{{name, false, true, QSettings::UserScope, false}};
    MediatorAccess access{mediator};
};

} // namespace

TEST_F(ShortcutsTest, LinkHoldsTargetFolderAndArgumentsWithBackslashes)
{
    const QString target = machine.Path("") + QString::fromUtf8("/\xD0\xB4 \xE3\x83\x95/quill.exe");
    ASSERT_TRUE(CreateShortCut(machine.Path("link"), target, {"a/b c", "-x"}));
    const LinkContent link = ReadLink(machine.Path("link.lnk"));
    EXPECT_EQ(link.target, Backslashes(QDir::cleanPath(target)));
    EXPECT_EQ(link.workingFolder, Backslashes(QFileInfo(target).absolutePath()));
    EXPECT_EQ(link.arguments, "\"a\\b c\" \"-x\"");

    ASSERT_TRUE(CreateShortCut(machine.Path("link"), target, {}));
    EXPECT_EQ(ReadLink(machine.Path("link.lnk")).arguments, "");
}

TEST_F(ShortcutsTest, LinkThatCannotBeSavedIsLogged)
{
    const QString link = machine.Path("no such folder/link");
    EXPECT_FALSE(CreateShortCut(link, installDir + "quill.exe", {}));
    EXPECT_EQ(machine.Log()
                  .filter("Creating shortcut ' " + Quoted(link) + " ' failed with code= ")
                  .size(),
        1)
        << machine.Log().join('\n').toStdString();
}

TEST_F(ShortcutsTest, UrlFileHasNoFinalLineEnd)
{
    EXPECT_TRUE(CreateUrlLink(machine.Path("a.url"), "https://links.example/?a=b"));
    EXPECT_EQ(
        ReadFile(machine.Path("a.url")), "[InternetShortcut]\r\nURL=https://links.example/?a=b");
    EXPECT_FALSE(CreateUrlLink(machine.Path("missing/a.url"), "https://links.example"));
}

TEST_F(ShortcutsTest, ScopeChoosesWhoSeesTheProduct)
{
    const QStringList menu = {"Vorlan Quillax/", "Vorlan Quillax/Site Vorlan Quillax.lnk",
        "Vorlan Quillax/Uninstall Vorlan Quillax.lnk", "Vorlan Quillax/Vorlan Quillax.lnk"};
    access.CreateShortcuts();
    EXPECT_EQ(Links(StandardLocation::Programs), menu);
    EXPECT_EQ(Links(StandardLocation::Desktop), QStringList("Vorlan Quillax.lnk"));
    EXPECT_EQ(Links(StandardLocation::CommonPrograms), QStringList());
    const QString menuFolder = GetStandardLocation(StandardLocation::Programs) + "/Vorlan Quillax/";
    EXPECT_EQ(
        ReadLink(menuFolder + "Vorlan Quillax.lnk").target, Backslashes(installDir + "quill.exe"));
    EXPECT_EQ(ReadLink(menuFolder + "Uninstall Vorlan Quillax.lnk").target,
        Backslashes(installDir + "uninst.exe"));
    EXPECT_EQ(ReadLink(menuFolder + "Site Vorlan Quillax.lnk").target,
        Backslashes(installDir + "Vorlan Quillax.url"));
    EXPECT_TRUE(
        ReadFile(installDir + "Vorlan Quillax.url").startsWith("[InternetShortcut]\r\nURL="));

    access.RemoveShortcuts();
    EXPECT_EQ(Links(StandardLocation::Programs), QStringList());
    EXPECT_EQ(Links(StandardLocation::Desktop), QStringList());

    access.Settings().scope = QSettings::SystemScope;
    access.CreateShortcuts();
    EXPECT_EQ(Links(StandardLocation::CommonPrograms), menu);
    EXPECT_EQ(Links(StandardLocation::CommonDesktop), QStringList("Vorlan Quillax.lnk"));
    EXPECT_EQ(Links(StandardLocation::Programs), QStringList());
}

TEST_F(ShortcutsTest, FurtherProgramsLieInTheirOwnFolder)
{
    access.Profile().appPaths += {"tool.exe", "Tool", "-a b/c"};
    access.CreateShortcuts();
    const QString programs =
        GetStandardLocation(StandardLocation::Programs) + "/Vorlan Quillax/Programs/";
    EXPECT_EQ(ListTree(programs), QStringList("Tool.lnk"));
    EXPECT_EQ(ReadLink(programs + "Tool.lnk").arguments, "\"-a b\\c\"");
}

TEST_F(ShortcutsTest, SiteLinkCanBeHidden)
{
    mediator.GetProductSettings()->setValue("HIDE_HOMEPAGE_SHORTCUT", true);
    access.CreateShortcuts();
    EXPECT_EQ(Links(StandardLocation::Programs).size(), 3);
    EXPECT_TRUE(QFile::exists(installDir + "Vorlan Quillax.url"));
}

TEST_F(ShortcutsTest, RemovalTellsWhatItFindsAndTakesTheOldDesktopLink)
{
    access.CreateShortcuts();
    access.Settings().previousFolderName = "Old Name";
    const QString desktop = GetStandardLocation(StandardLocation::Desktop) + QDir::separator();
    ASSERT_TRUE(CreateShortCut(desktop + "Old Name", installDir + "quill.exe", {}));
    access.RemoveShortcuts();
    EXPECT_EQ(Links(StandardLocation::Desktop), QStringList("Vorlan Quillax.lnk"));
    EXPECT_EQ(machine.Log().filter("existing link= ").size(), 3);
    EXPECT_TRUE(
        machine.Log().contains("Removing  " + Quoted(desktop + "Old Name.lnk") + " ( true )"))
        << machine.Log().join('\n').toStdString();

    const int lines = machine.Log().size();
    access.RemoveShortcuts();
    EXPECT_EQ(machine.Log().mid(lines).filter("existing link="), QStringList());
    EXPECT_EQ(machine.Log().last(), "Failed to remove desktop shortcut.");
}

TEST_F(ShortcutsTest, NameThatNoFileCanBearLosesItsLinksAndNothingElse)
{
    access.Settings().productFolderName = "Vorlan/Quillax";
    access.CreateShortcuts();
    EXPECT_EQ(machine.Log().filter("' failed with code=").size(), 4);
    EXPECT_EQ(Links(StandardLocation::Desktop), QStringList());
    access.RemoveShortcuts();
    EXPECT_EQ(Links(StandardLocation::Programs), QStringList("Vorlan/"));
}

TEST_F(ShortcutsTest, RemovalNeverTakesTheWholeStartMenu)
{
    const QString foreign = GetStandardLocation(StandardLocation::Programs) + "/Other/notes.txt";
    WriteFile(foreign, "of another program");
    for (const char* productName : {"", ".", "..", "../..", "Other/.."})
    {
        access.Settings().productFolderName = productName;
        const int lines = machine.Log().size();
        access.RemoveShortcuts();
        EXPECT_TRUE(QFile::exists(foreign)) << '"' << productName << '"';
        EXPECT_EQ(machine.Log().mid(lines).filter("Not removing ").size(), 1) << productName;
    }
    // Below the Start menu, though not written in the shortest way.
    access.Settings().productFolderName = "./A//../Vorlan Quillax";
    access.CreateShortcuts();
    access.RemoveShortcuts();
    EXPECT_EQ(Links(StandardLocation::Programs).filter("Vorlan"), QStringList());
    EXPECT_TRUE(QFile::exists(foreign));
}
