#include "support/PalMachine.h"

#include <string>

namespace
{

class FilesTest : public PalMachine
{
protected:
    static HANDLE Open(const std::wstring& path, DWORD access, DWORD disposition,
        DWORD shareMode = FILE_SHARE_READ | FILE_SHARE_WRITE)
    {
        return CreateFileW(
            path.c_str(), access, shareMode, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    }

    static void ExpectOpenFails(const std::wstring& path, DWORD access, DWORD disposition,
        DWORD error, DWORD shareMode = FILE_SHARE_READ | FILE_SHARE_WRITE)
    {
        SetLastError(ERROR_SUCCESS);
        EXPECT_EQ(Open(path, access, disposition, shareMode), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), error);
    }

    static bool Write(HANDLE file, const std::string& text)
    {
        DWORD written = 0;
        return WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
               written == text.size();
    }

    static std::string Read(HANDLE file, DWORD most)
    {
        std::string text(most, '#');
        DWORD got = 0;
        EXPECT_TRUE(ReadFile(file, text.data(), most, &got, nullptr));
        text.resize(got);
        return text;
    }

    static void MakeFile(const std::wstring& path, const std::string& content)
    {
        const HANDLE file = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(Write(file, content));
        EXPECT_TRUE(CloseHandle(file));
    }

    static std::string ContentOf(const std::wstring& path)
    {
        const HANDLE file = Open(path, GENERIC_READ, OPEN_EXISTING);
        if (file == INVALID_HANDLE_VALUE)
            return "(no file)";
        const std::string content = Read(file, 1000);
        CloseHandle(file);
        return content;
    }
};

TEST_F(FilesTest, EachDispositionTreatsAFileThatIsThereInItsOwnWay)
{
    struct Case
    {
        DWORD disposition;
        const char* contentAfterwards;
        DWORD lastError;
    };
    const Case cases[] = {
        {CREATE_ALWAYS, "new", ERROR_ALREADY_EXISTS},
        {OPEN_ALWAYS, "new content", ERROR_ALREADY_EXISTS},
        {OPEN_EXISTING, "new content", ERROR_SUCCESS},
        {TRUNCATE_EXISTING, "new", ERROR_SUCCESS},
    };
    for (const Case& each : cases)
    {
        const std::wstring path = PathOf(L"there");
        MakeFile(path, "old content");
        SetLastError(ERROR_SUCCESS);
        const HANDLE file = Open(path, GENERIC_WRITE, each.disposition);
        EXPECT_EQ(GetLastError(), each.lastError);
        EXPECT_TRUE(Write(file, "new"));
        CloseHandle(file);
        EXPECT_EQ(ContentOf(path), each.contentAfterwards);
    }
    ExpectOpenFails(PathOf(L"there"), GENERIC_WRITE, CREATE_NEW, ERROR_FILE_EXISTS);
}

TEST_F(FilesTest, BothSeparatorsSeparate)
{
    ASSERT_TRUE(CreateDirectoryW(PathOf(L"one").c_str(), nullptr));
    ASSERT_TRUE(CreateDirectoryW(PathOf(L"one\\two").c_str(), nullptr));
    MakeFile(PathOf(L"one\\two/file"), "content");
    EXPECT_EQ(ContentOf(PathOf(L"one/two\\file")), "content");
}

TEST_F(FilesTest, ShareModesKeepTheSecondHandleOut)
{
    struct Case
    {
        DWORD firstAccess;
        DWORD firstShare;
        DWORD secondAccess;
        DWORD secondShare;
        bool opens;
    };
    const Case cases[] = {
        {GENERIC_READ, FILE_SHARE_READ, GENERIC_READ, FILE_SHARE_READ, true},
        {GENERIC_READ, 0, GENERIC_READ, FILE_SHARE_READ, false},
        {GENERIC_READ, FILE_SHARE_READ, GENERIC_WRITE, FILE_SHARE_READ, false},
        {GENERIC_WRITE, FILE_SHARE_READ, GENERIC_READ, FILE_SHARE_READ, false},
        {GENERIC_WRITE, FILE_SHARE_READ, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, true},
        {GENERIC_WRITE, FILE_SHARE_READ, GENERIC_WRITE, FILE_SHARE_READ, false},
    };
    const std::wstring path = PathOf(L"shared");
    MakeFile(path, "content");
    for (const Case& each : cases)
    {
        const HANDLE first = Open(path, each.firstAccess, OPEN_EXISTING, each.firstShare);
        ASSERT_NE(first, INVALID_HANDLE_VALUE);
        const HANDLE second = Open(path, each.secondAccess, OPEN_EXISTING, each.secondShare);
        EXPECT_EQ(second != INVALID_HANDLE_VALUE, each.opens) << &each - cases;
        if (second == INVALID_HANDLE_VALUE)
            EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
        else
            CloseHandle(second);
        CloseHandle(first);
    }
    const HANDLE first = Open(path, GENERIC_READ, OPEN_EXISTING, FILE_SHARE_READ);
    ExpectOpenFails(path, GENERIC_WRITE, CREATE_ALWAYS, ERROR_SHARING_VIOLATION);
    EXPECT_EQ(Read(first, 100), "content");
    CloseHandle(first);
}

TEST_F(FilesTest, ThePointerMovesFromEachOriginAndNeverBeforeTheStart)
{
    MakeFile(PathOf(L"file"), "0123456789");
    const HANDLE file = Open(PathOf(L"file"), GENERIC_READ, OPEN_EXISTING);
    EXPECT_EQ(SetFilePointer(file, 3, nullptr, FILE_BEGIN), 3u);
    EXPECT_EQ(SetFilePointer(file, 2, nullptr, FILE_CURRENT), 5u);
    EXPECT_EQ(SetFilePointer(file, -1, nullptr, FILE_END), 9u);
    EXPECT_EQ(Read(file, 5), "9");
    EXPECT_EQ(SetFilePointer(file, -11, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NEGATIVE_SEEK});
    EXPECT_EQ(SetFilePointer(file, 0, nullptr, 3), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(SetFilePointer(file, 0, nullptr, FILE_CURRENT), 10u);
    CloseHandle(file);
}

TEST_F(FilesTest, PositionsAndSizesPastFourGibibytesAreExact)
{
    const HANDLE file = Open(PathOf(L"sparse"), GENERIC_READ | GENERIC_WRITE, CREATE_NEW);
    LONG high = 1;
    EXPECT_EQ(SetFilePointer(file, 5, &high, FILE_BEGIN), 5u);
    EXPECT_EQ(high, 1);
    EXPECT_TRUE(Write(file, "end"));
    DWORD sizeHigh = 0;
    EXPECT_EQ(GetFileSize(file, &sizeHigh), 8u);
    EXPECT_EQ(sizeHigh, 1u);
    high = -1;
    EXPECT_EQ(SetFilePointer(file, -3, &high, FILE_END), 5u);
    EXPECT_EQ(Read(file, 10), "end");
    CloseHandle(file);
}

TEST_F(FilesTest, AttributesTellFoldersFromFiles)
{
    MakeFile(PathOf(L"file"), "content");
    ASSERT_TRUE(CreateDirectoryW(PathOf(L"folder").c_str(), nullptr));
    const auto isFolder = [this](const wchar_t* name)
    { return (GetFileAttributesW(PathOf(name).c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0; };
    EXPECT_TRUE(isFolder(L"folder"));
    EXPECT_TRUE(isFolder(L"folder\\"));
    EXPECT_FALSE(isFolder(L"file"));
}

TEST_F(FilesTest, NamesBeyondTheBasicPlaneAreTheSameForBothKindsOfCall)
{
    const std::wstring path = PathOf(L"\u97f3\u697d \U0001F3B5.mp4");
    MakeFile(path, "content");
    EXPECT_TRUE(QFile::exists(QString::fromStdWString(path)));
    const QByteArray narrow = QString::fromStdWString(PathOf(L"plain")).toLocal8Bit();
    const HANDLE file = CreateFileA(narrow.constData(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_TRUE(Write(file, "by its narrow name"));
    CloseHandle(file);
    EXPECT_EQ(ContentOf(PathOf(L"plain")), "by its narrow name");
}

} // namespace
