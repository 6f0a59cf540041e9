#include "support/PalMachine.h"

#include <QDir>

#include <pwd.h>
#include <unistd.h>

#include <Pal.h>
#include <shlobj.h>

namespace
{

class ShellFoldersLinuxTest : public PalMachine
{
protected:
    static std::string PathOf(int folder)
    {
        wchar_t path[MAX_PATH] = L"old";
        const BOOL found = SHGetSpecialFolderPathW(nullptr, path, folder, FALSE);
        return found || *path ? QString::fromWCharArray(path).toStdString() : "(none)";
    }
};

TEST_F(ShellFoldersLinuxTest, TheFoldersLieUnderTheMachineRoot)
{
    const std::string root = MachineFolder().toStdString();
    const std::string user = root + "/Users/" + getpwuid(getuid())->pw_name;
    EXPECT_EQ(Pal::MachineRoot(), root);
    EXPECT_EQ(PathOf(CSIDL_DESKTOP), user + "/Desktop");
    EXPECT_EQ(
        PathOf(CSIDL_PROGRAMS), user + "/AppData/Roaming/Microsoft/Windows/Start Menu/Programs");
    EXPECT_EQ(PathOf(CSIDL_APPDATA), user + "/AppData/Roaming");
    EXPECT_EQ(PathOf(CSIDL_LOCAL_APPDATA), user + "/AppData/Local");
    EXPECT_EQ(PathOf(CSIDL_COMMON_DESKTOPDIRECTORY), root + "/Users/Public/Desktop");
    EXPECT_EQ(
        PathOf(CSIDL_COMMON_PROGRAMS), root + "/ProgramData/Microsoft/Windows/Start Menu/Programs");
    EXPECT_EQ(PathOf(CSIDL_COMMON_APPDATA), root + "/ProgramData");
    EXPECT_EQ(PathOf(CSIDL_SYSTEM), root + "/Windows/System32");
}

TEST_F(ShellFoldersLinuxTest, AnotherMachineRootAppliesAtOnceAndIsMadeWhole)
{
    const QByteArray other = (MachineFolder() + "-\u00e4nders").toUtf8();
    qputenv("VORLAN_MACHINE", other);
    EXPECT_EQ(PathOf(CSIDL_SYSTEM), (other + "/Windows/System32").toStdString());
    EXPECT_TRUE(QDir(other + "/registry").exists());
    EXPECT_TRUE(QDir(other + "/Users/Public/Desktop").exists());
    ASSERT_TRUE(QDir(other).removeRecursively());
    EXPECT_NE(PathOf(CSIDL_SYSTEM), "(none)");
    EXPECT_TRUE(QDir(other + "/Windows/System32").exists());
}

TEST_F(ShellFoldersLinuxTest, WithoutTheVariableTheMachineLiesInTheUsersData)
{
    const QByteArray formerData = qgetenv("XDG_DATA_HOME");
    const QByteArray formerHome = qgetenv("HOME");
    qunsetenv("VORLAN_MACHINE");
    qputenv("XDG_DATA_HOME", "/data");
    EXPECT_EQ(Pal::MachineRoot(), "/data/vorlan-machine");
    qunsetenv("XDG_DATA_HOME");
    qputenv("HOME", "/house");
    EXPECT_EQ(Pal::MachineRoot(), "/house/.local/share/vorlan-machine");
    qputenv("HOME", formerHome);
    if (!formerData.isNull())
        qputenv("XDG_DATA_HOME", formerData);
}

TEST_F(ShellFoldersLinuxTest, APathOf259CharactersFitsAndALongerOneFails)
{
    const std::string tail = "/Windows/System32";
    std::string root = MachineFolder().toStdString();
    root.append(259 - root.size() - tail.size(), 'm');
    qputenv("VORLAN_MACHINE", root.c_str());
    EXPECT_EQ(PathOf(CSIDL_SYSTEM), root + tail);
    qputenv("VORLAN_MACHINE", (root + "m").c_str());
    EXPECT_EQ(PathOf(CSIDL_SYSTEM), "(none)");
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILENAME_EXCED_RANGE});
}

TEST_F(ShellFoldersLinuxTest, AMachineThatCannotBeMadeHasNoFolders)
{
    qputenv("VORLAN_MACHINE", "/proc/nothing can be made here");
    EXPECT_EQ(PathOf(CSIDL_SYSTEM), "(none)");
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
}

} // namespace
