#include "RemovalGuard.h"
#include "support/Environment.h"
#include "support/FolderLink.h"
#include "support/Machine.h"

#include <QDir>
#include <QSysInfo>

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;

namespace
{

const bool isWindows = QSysInfo::kernelType() == "winnt";

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

void MakeFolders(const QString& top)
{
    for (const FolderCase& folder : folderCases)
    {
        if (QString(folder.objection) != "no folder")
            QDir().mkpath(QDir::cleanPath(top + QString(folder.folder).replace('\\', '/')));
    }
    WriteFile(top + "file", "stays");
}

TEST(RemovalGuardTest, FoldersThatBelongToOthersAreNotRemovedWithTheirContent)
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
        if (isWindows || !row.isOnlyWindows)
        {
            EXPECT_EQ(FindRemovalObjection(top + row.folder), QString(row.objection)) << row.folder;
        }
    }
}

TEST(RemovalGuardTest, NeitherAreRootsLinksAndRelativePaths)
{
    const Machine machine;
    QDir().mkpath(machine.Path("outside/Vorlan Quillax"));
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
        EXPECT_EQ(FindRemovalObjection(folder), objection) << folder.toStdString();
}

} // namespace
