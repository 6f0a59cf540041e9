#include "support/PalMachine.h"

#include <filesystem>

#include <sys/stat.h>

#include <Pal.h>

namespace
{

namespace fs = std::filesystem;

class FilesLinuxTest : public PalMachine
{
protected:
    static HANDLE Create(const std::wstring& path, DWORD disposition = CREATE_ALWAYS)
    {
        return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, disposition,
            FILE_ATTRIBUTE_NORMAL, nullptr);
    }

    std::string NativePathOf(const std::wstring& name) const
    {
        return QString::fromStdWString(PathOf(name)).toStdString();
    }
};

TEST_F(FilesLinuxTest, ANewFileCanBeStarted)
{
    const mode_t formerMask = umask(022);
    CloseHandle(Create(PathOf(L"program")));
    umask(formerMask);
    struct stat status = {};
    ASSERT_EQ(stat(NativePathOf(L"program").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0755u);
}

TEST_F(FilesLinuxTest, ASurrogatePairInANameIsOneCharacter)
{
    const wchar_t pair[] = {0xD83C, 0xDFB5, 0};
    CloseHandle(Create(PathOf(pair)));
    EXPECT_TRUE(fs::exists(NativePathOf(L"") + "\xF0\x9F\x8E\xB5"));
}

TEST_F(FilesLinuxTest, ANameThatIsNoTextIsRefused)
{
    const wchar_t names[][3] = {{0xD83C, 'x', 0}, {0xDFB5, 0xD83C, 0}, {0x110000, 0, 0}};
    for (const auto& name : names)
    {
        EXPECT_EQ(Create(PathOf(name)), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_NAME});
        EXPECT_EQ(GetFileAttributesW(PathOf(name).c_str()), INVALID_FILE_ATTRIBUTES);
        EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_NAME});
    }
    EXPECT_TRUE(fs::is_empty(NativePathOf(L"")));
}

TEST_F(FilesLinuxTest, AFullDiskIsToldAsSuch)
{
    const HANDLE full = Create(L"/dev/full", OPEN_EXISTING);
    ASSERT_NE(full, INVALID_HANDLE_VALUE);
    DWORD written = 77;
    EXPECT_FALSE(WriteFile(full, "text", 4, &written, nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_DISK_FULL});
    EXPECT_EQ(written, 0u);
    CloseHandle(full);
}

TEST_F(FilesLinuxTest, ShareModesHoldForEveryNameOfAFile)
{
    const HANDLE file = Create(PathOf(L"file"));
    fs::create_symlink(NativePathOf(L"file"), NativePathOf(L"link"));
    EXPECT_EQ(Create(PathOf(L"link")), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    CloseHandle(file);
    const HANDLE link = Create(PathOf(L"link"));
    EXPECT_NE(link, INVALID_HANDLE_VALUE);
    CloseHandle(link);
}

TEST_F(FilesLinuxTest, ALinkHasAttributesOfItsOwn)
{
    fs::create_directory(NativePathOf(L"folder"));
    fs::create_directory_symlink(NativePathOf(L"folder"), NativePathOf(L"to folder"));
    fs::create_symlink(NativePathOf(L"nothing"), NativePathOf(L"to nothing"));
    EXPECT_EQ(GetFileAttributesW(PathOf(L"to folder").c_str()),
        DWORD{FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY});
    EXPECT_EQ(
        GetFileAttributesW(PathOf(L"to nothing").c_str()), DWORD{FILE_ATTRIBUTE_REPARSE_POINT});
}

TEST_F(FilesLinuxTest, AttributesTellWhatNobodyMayWrite)
{
    CloseHandle(Create(PathOf(L"file")));
    EXPECT_EQ(GetFileAttributesW(PathOf(L"file").c_str()), DWORD{FILE_ATTRIBUTE_NORMAL});
    fs::permissions(NativePathOf(L"file"), fs::perms::owner_read);
    EXPECT_EQ(GetFileAttributesW(PathOf(L"file").c_str()), DWORD{FILE_ATTRIBUTE_READONLY});
}

TEST_F(FilesLinuxTest, OpenHandlesNamesFilesAndKeysUntilTheyAreClosed)
{
    const std::vector<std::string> before = Pal::OpenHandles();
    EXPECT_EQ(before, std::vector<std::string>{"HKEY_CURRENT_USER\\Software\\VorlanPalTests"});
    const HANDLE file = Create(PathOf(L"file"));
    EXPECT_EQ(
        Pal::OpenHandles(), (std::vector<std::string>{NativePathOf(L"file"), before.front()}));
    CloseHandle(file);
    EXPECT_EQ(Pal::OpenHandles(), before);
}

} // namespace
