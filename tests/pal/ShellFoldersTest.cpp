#include "support/PalMachine.h"

#include <set>

#include <shlobj.h>

namespace
{

constexpr int folders[] = {CSIDL_DESKTOP, CSIDL_PROGRAMS, CSIDL_APPDATA, CSIDL_LOCAL_APPDATA,
    CSIDL_COMMON_DESKTOPDIRECTORY, CSIDL_COMMON_PROGRAMS, CSIDL_COMMON_APPDATA, CSIDL_SYSTEM};

class ShellFoldersTest : public PalMachine
{
};

TEST_F(ShellFoldersTest, EveryFolderIsThereAndHasAPathOfItsOwn)
{
    std::set<std::wstring> paths;
    for (const int folder : folders)
    {
        wchar_t path[MAX_PATH] = L"old";
        ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, path, folder, FALSE)) << folder;
        const DWORD attributes = GetFileAttributesW(path);
        EXPECT_NE(attributes, INVALID_FILE_ATTRIBUTES) << folder;
        EXPECT_TRUE(attributes & FILE_ATTRIBUTE_DIRECTORY) << folder;
        paths.insert(path);
    }
    EXPECT_EQ(paths.size(), std::size(folders));
}

} // namespace
