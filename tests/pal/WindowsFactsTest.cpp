// Facts about Windows. Each row has the fact in words, what the calls did, what they do on Windows
// and, if Wine differs from Windows, what they do under Wine. The rows are evaluated in order.
#include "support/ChildProcesses.h"
#include "support/RegistryCalls.h"
#include "support/ShellLinks.h"

#include <QSysInfo>

#include <psapi.h>
#include <shellapi.h>

namespace
{

using namespace std::string_literals;

struct Fact
{
    const char* words;
    std::string seen;
    std::string expected;
    std::string underWine{};
};

void Check(const std::vector<Fact>& facts)
{
    const bool onLinux = QSysInfo::kernelType() == "linux";
    for (const Fact& fact : facts)
    {
        if (onLinux || fact.seen != fact.underWine)
        {
            EXPECT_EQ(fact.seen, fact.expected) << fact.words;
        }
    }
}

std::string Shown(const std::wstring& text)
{
    return QString::fromStdWString(text).toStdString();
}
std::string Shown(const void* pointer)
{
    return pointer ? "something" : "null";
}
template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
std::string Shown(Number number)
{
    return std::to_string(number);
}

// Results, errors, pointers and texts in one line.
template <typename... Parts>
std::string Seen(const Parts&... parts)
{
    std::string text;
    ((text += Shown(parts) + ' '), ...);
    return text;
}

// The last error of a call that failed, or ERROR_SUCCESS.
template <typename Call>
DWORD ErrorOf(const Call& call)
{
    return call() ? ERROR_SUCCESS : GetLastError();
}

using WindowsFactsTest = ChildProcesses;

TEST_F(WindowsFactsTest, OfKeys)
{
    const HKEY parent = MakeKey(Key(), L"Parent");
    RegCloseKey(MakeKey(parent, L"Child"));
    const HKEY reader = MakeKey(parent, L"", KEY_READ);
    const HKEY gone = MakeKey(Key(), L"Gone");
    RegDeleteKeyW(Key(), L"Gone");
    RegCloseKey(MakeKey(Key(), L"Gone"));
    const HKEY other = MakeKey(Key(), L"M\u00e4rz");
    const HKEY closed = MakeKey(Key(), L"Closed");
    RegCloseKey(closed);
    const auto open = [](HKEY key, const wchar_t* name, REGSAM access = KEY_READ)
    {
        HKEY opened = HKEY_CURRENT_USER;
        const LSTATUS result = RegOpenKeyExW(key, name, 0, access, &opened);
        if (result == ERROR_SUCCESS)
            RegCloseKey(opened);
        return Seen(result, opened);
    };
    const auto fails = [](LSTATUS error) { return Seen(error, nullptr); };
    DWORD size = 0;
    wchar_t name[8];
    DWORD length = 8;
    const auto list = [&](DWORD letters)
    {
        length = letters + 1;
        *name = L'\0';
        const LSTATUS result =
            RegEnumKeyExW(parent, 0, name, &length, nullptr, nullptr, nullptr, nullptr);
        return Seen(result, std::wstring(name), length);
    };
    Check({
        {"A missing key gives no handle", open(parent, L"none"), fails(ERROR_FILE_NOT_FOUND)},
        {"Case does not matter", open(Key(), L"m\u00c4RZ"), Seen(0, parent)},
        {"No name opens the key itself", open(parent, nullptr), Seen(0, parent)},
        {"A null key has no sub-keys", open(nullptr, L""), fails(ERROR_INVALID_HANDLE)},
        {"A closed key has none", open(closed, L"Child"), fails(ERROR_INVALID_HANDLE)},
        {"A path begins with a name", open(parent, L"\\Child"), fails(ERROR_BAD_PATHNAME)},
        {"It may end with separators", open(parent, L"Child\\\\"), Seen(0, parent)},
        {"A key is opened in one view",
            open(parent, L"", KEY_READ | KEY_WOW64_32KEY | KEY_WOW64_64KEY),
            fails(ERROR_INVALID_PARAMETER), Seen(0, parent)},
        {"The user's keys are the same in both",
            open(HKEY_CURRENT_USER, keyPath, KEY_READ | KEY_WOW64_32KEY), Seen(0, parent)},
        {"A result is required", Seen(RegOpenKeyExW(parent, L"", 0, KEY_READ, nullptr)),
            Seen(ERROR_INVALID_PARAMETER)},
        {"Null is no key to close", Seen(RegCloseKey(nullptr)), Seen(ERROR_INVALID_HANDLE)},
        {"A predefined key may be closed", Seen(RegCloseKey(HKEY_CURRENT_USER)), Seen(0)},
        {"A sub-key is listed where its name fits", list(5), Seen(0, L"Child"s, 5)},
        {"It needs room for the closing zero", list(4), Seen(ERROR_MORE_DATA, L""s, 5)},
        {"A deleted key has a name", Seen(RegDeleteKeyW(parent, nullptr)),
            Seen(ERROR_INVALID_PARAMETER)},
        {"It has no sub-keys", Seen(RegDeleteKeyW(Key(), L"Parent")), Seen(ERROR_ACCESS_DENIED)},
        {"The handle's rights do not matter", Seen(RegDeleteKeyW(reader, L"Child")), Seen(0)},
        {"Nor does case", Seen(RegDeleteKeyW(Key(), L"PARENT\\")), Seen(0)},
        {"It is gone", open(Key(), L"Parent"), fails(ERROR_FILE_NOT_FOUND)},
        {"An empty name deletes the key itself", Seen(RegDeleteKeyW(other, L"")), Seen(0)},
        {"A deleted key's handle says so",
            Seen(RegQueryValueExW(gone, L"", nullptr, nullptr, nullptr, &size),
                SetText(gone, L"", L"text"), RegDeleteValueW(gone, L""),
                RegEnumKeyExW(gone, 0, name, &length, nullptr, nullptr, nullptr, nullptr)),
            Seen(ERROR_KEY_DELETED, ERROR_KEY_DELETED, ERROR_KEY_DELETED, ERROR_KEY_DELETED)},
        {"It opens nothing", open(gone, L"Child"), fails(ERROR_KEY_DELETED)},
        {"It is closed all the same", Seen(RegCloseKey(gone)), Seen(0)},
    });
    for (const HKEY key : {parent, reader, other})
        RegCloseKey(key);
}

TEST_F(WindowsFactsTest, OfValues)
{
    const DWORD textSize = 5 * sizeof(wchar_t);
    SetText(Key(), L"four", L"text");
    RegSetValueExW(
        Key(), L"open", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abcd"), 3 * sizeof(wchar_t));
    const HKEY reader = MakeKey(Key(), L"", KEY_READ);
    const HKEY writer = MakeKey(Key(), L"", KEY_SET_VALUE);
    wchar_t name[16];
    wchar_t data[16];
    BYTE* const bytes = reinterpret_cast<BYTE*>(data);
    const auto list = [&](DWORD index, DWORD length, DWORD size, HKEY key)
    {
        DWORD type = 0;
        *name = L'\0';
        const LSTATUS result =
            RegEnumValueW(key, index, name, &length, nullptr, &type, bytes, &size);
        return Seen(result, std::wstring(name), length, type, size);
    };
    const auto query = [&](const wchar_t* value, DWORD size, HKEY key)
    {
        DWORD type = 0;
        std::fill_n(data, 16, L'#');
        const LSTATUS result =
            RegQueryValueExW(key, value, nullptr, &type, size ? bytes : nullptr, &size);
        return Seen(result, type, size, std::wstring(data, 4));
    };
    const std::wstring empty;
    DWORD both = sizeof data;
    Check({
        {"A value is listed with name, type and size", list(0, 5, 64, Key()),
            Seen(0, L"four"s, 4, REG_SZ, textSize)},
        {"A name that does not fit leaves type and size", list(0, 4, 64, Key()),
            Seen(ERROR_MORE_DATA, empty, 4, REG_SZ, textSize)},
        {"Data that does not fit leaves the rest", list(0, 5, textSize - 1, Key()),
            Seen(ERROR_MORE_DATA, L"four"s, 4, REG_SZ, textSize)},
        {"The list ends after the last value", list(2, 5, 64, Key()),
            Seen(ERROR_NO_MORE_ITEMS, empty, 5, 0, 64)},
        {"A name needs a buffer",
            Seen(RegEnumValueW(Key(), 0, nullptr, &both, nullptr, nullptr, nullptr, nullptr)),
            Seen(ERROR_INVALID_PARAMETER)},
        {"Without a buffer the size is told", query(L"four", 0, Key()),
            Seen(0, REG_SZ, textSize, L"####"s)},
        {"With a small one, too", query(L"four", textSize - 1, Key()),
            Seen(ERROR_MORE_DATA, REG_SZ, textSize, L"####"s)},
        {"Type and size may be left out",
            Seen(RegQueryValueExW(Key(), L"four", nullptr, nullptr, nullptr, nullptr)), Seen(0)},
        {"Data needs a size",
            Seen(RegQueryValueExW(Key(), L"four", nullptr, nullptr, bytes, nullptr)),
            Seen(ERROR_INVALID_PARAMETER)},
        {"One variable for both gets the size",
            Seen(RegQueryValueExW(Key(), L"four", nullptr, &both, bytes, &both), both),
            Seen(0, textSize)},
        {"An unclosed text is closed where there is room", query(L"open", sizeof data, Key()),
            Seen(0, REG_SZ, 3 * sizeof(wchar_t), L"abc\0"s)},
        {"And only there", query(L"open", 3 * sizeof(wchar_t), Key()),
            Seen(0, REG_SZ, 3 * sizeof(wchar_t), L"abc#"s)},
        {"A missing value has no size", query(L"none", 0, Key()),
            Seen(ERROR_FILE_NOT_FOUND, 0, 0, L"####"s)},
        {"A missing value is not deleted", Seen(RegDeleteValueW(Key(), L"none")),
            Seen(ERROR_FILE_NOT_FOUND)},
        {"The default value has no name", Seen(SetText(Key(), L"", L"")), Seen(0)},
        {"Or an empty one", query(nullptr, 0, Key()), Seen(0, REG_SZ, sizeof(wchar_t), L"####"s)},
        {"It is deleted once",
            Seen(RegDeleteValueW(reader, nullptr), RegDeleteValueW(Key(), nullptr)),
            Seen(ERROR_ACCESS_DENIED, 0)},
        {"Data needs a place", Seen(RegSetValueExW(Key(), L"x", 0, REG_BINARY, nullptr, 1)),
            Seen(ERROR_NOACCESS)},
        {"A reader does not write",
            Seen(SetText(reader, L"x", L""), RegDeleteValueW(reader, L"four")),
            Seen(ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED)},
        {"A writer writes", Seen(SetText(writer, L"x", L"")), Seen(0)},
        {"A writer does not query", query(L"four", 0, writer),
            Seen(ERROR_ACCESS_DENIED, 0, 0, L"####"s)},
        {"A writer does not list", list(0, 5, 64, writer),
            Seen(ERROR_ACCESS_DENIED, empty, 5, 0, 64)},
    });
    RegCloseKey(reader);
    RegCloseKey(writer);
}

TEST_F(WindowsFactsTest, OfFiles)
{
    const auto create = [](const std::wstring& path, DWORD access, DWORD disposition)
    {
        return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
            disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    };
    const TestHandle writer(create(PathOf(L"file"), GENERIC_WRITE, CREATE_NEW));
    const TestHandle reader(create(PathOf(L"file"), GENERIC_READ, OPEN_EXISTING));
    const auto open = [&](const std::wstring& path, DWORD disposition = OPEN_EXISTING)
    {
        return ErrorOf(
            [&]
            {
                const HANDLE file = create(path, GENERIC_READ | GENERIC_WRITE, disposition);
                return file != INVALID_HANDLE_VALUE && CloseHandle(file);
            });
    };
    const auto makeFolder = [this](const wchar_t* name)
    { return ErrorOf([&] { return CreateDirectoryW(PathOf(name).c_str(), nullptr); }); };
    const auto attributes = [this](const wchar_t* name)
    {
        return ErrorOf(
            [&] { return GetFileAttributesW(PathOf(name).c_str()) != INVALID_FILE_ATTRIBUTES; });
    };
    char byte = 'x';
    const auto read = [](HANDLE file, void* buffer, DWORD size)
    {
        DWORD count = 77;
        const DWORD error = ErrorOf([&] { return ReadFile(file, buffer, size, &count, nullptr); });
        return Seen(error, count);
    };
    const auto write = [](HANDLE file, const void* buffer, DWORD size)
    {
        DWORD count = 77;
        const DWORD error = ErrorOf([&] { return WriteFile(file, buffer, size, &count, nullptr); });
        return Seen(error, count);
    };
    const HANDLE closed = create(PathOf(L"closed"), GENERIC_READ, CREATE_NEW);
    CloseHandle(closed);
    Check({
        {"A folder is made", Seen(makeFolder(L"folder")), Seen(0)},
        {"It is made once", Seen(makeFolder(L"folder")), Seen(ERROR_ALREADY_EXISTS)},
        {"Not over a file", Seen(makeFolder(L"file")), Seen(ERROR_ALREADY_EXISTS)},
        {"Not as itself", Seen(makeFolder(L"."), makeFolder(L"folder\\..")),
            Seen(ERROR_ALREADY_EXISTS, ERROR_ALREADY_EXISTS)},
        {"Only in a folder", Seen(makeFolder(L"none/folder")), Seen(ERROR_PATH_NOT_FOUND)},
        {"An empty name is no path", Seen(open(L"")), Seen(ERROR_PATH_NOT_FOUND)},
        {"A missing file is told", Seen(open(PathOf(L"none"))), Seen(ERROR_FILE_NOT_FOUND)},
        {"It is not emptied", Seen(open(PathOf(L"none"), TRUNCATE_EXISTING)),
            Seen(ERROR_FILE_NOT_FOUND)},
        {"But made",
            Seen(open(PathOf(L"made"), OPEN_ALWAYS), open(PathOf(L"made too"), CREATE_ALWAYS)),
            Seen(0, 0)},
        {"And a missing folder", Seen(open(PathOf(L"none/x")), open(PathOf(L"none/x"), CREATE_NEW)),
            Seen(ERROR_PATH_NOT_FOUND, ERROR_PATH_NOT_FOUND)},
        {"A folder is no file", Seen(open(PathOf(L"folder")), open(PathOf(L"folder"), OPEN_ALWAYS)),
            Seen(ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED)},
        {"Nor does a file's path end like a folder's", Seen(open(PathOf(L"folder\\"))),
            Seen(ERROR_PATH_NOT_FOUND), Seen(ERROR_ACCESS_DENIED)},
        {"A file is made once", Seen(open(PathOf(L"file"), CREATE_NEW)), Seen(ERROR_FILE_EXISTS)},
        {"Nul is the null device", Seen(open(L"nul"), open(L"NUL")), Seen(0, 0)},
        {"What is missing has no attributes", Seen(attributes(L"none"), attributes(L"none/file")),
            Seen(ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND)},
        {"Nothing needs no buffer",
            read(reader.Get(), nullptr, 0) + write(writer.Get(), nullptr, 0),
            Seen(0, 0) + Seen(0, 0)},
        {"A byte is written", write(writer.Get(), &byte, 1), Seen(0, 1)},
        {"But not from nowhere", write(writer.Get(), nullptr, 1),
            Seen(ERROR_INVALID_USER_BUFFER, 0)},
        {"Nor read to nowhere", read(reader.Get(), nullptr, 1), Seen(ERROR_NOACCESS, 0)},
        {"It is read", read(reader.Get(), &byte, 1), Seen(0, 1)},
        {"The end of the file is no error", read(reader.Get(), &byte, 1), Seen(0, 0)},
        {"A writer does not read", read(writer.Get(), &byte, 1), Seen(ERROR_ACCESS_DENIED, 0)},
        {"A reader does not write", write(reader.Get(), &byte, 1), Seen(ERROR_ACCESS_DENIED, 0)},
        {"A closed handle is no file", read(closed, &byte, 1) + write(closed, &byte, 1),
            Seen(ERROR_INVALID_HANDLE, 0) + Seen(ERROR_INVALID_HANDLE, 0)},
        {"It has no size", Seen(ErrorOf([&] { return ~GetFileSize(closed, nullptr); })),
            Seen(ERROR_INVALID_HANDLE)},
        {"It is not closed again", Seen(ErrorOf([&] { return CloseHandle(closed); })),
            Seen(ERROR_INVALID_HANDLE)},
    });
}

TEST_F(WindowsFactsTest, OfProcesses)
{
    const std::wstring child = L"\"" + ChildProgram() + L"\" ";
    const std::wstring folder = PathOf(L"sub");
    CopyChild(L"sub/child.exe");
    CopyChild(L"one words.exe");
    CopyChild(L"one.exe");
    const std::wstring one = PathOf(L"one");
    const std::wstring blanks = CopyChild(L"a b/c d.exe");
    const auto start = [](const wchar_t* application, const std::wstring& commandLine,
                           const wchar_t* startFolder = nullptr)
    {
        std::wstring line = commandLine;
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION information = {HKEY_CURRENT_USER, HKEY_CURRENT_USER, 1, 1};
        const DWORD error = ErrorOf(
            [&]
            {
                return CreateProcessW(application, line.empty() ? nullptr : line.data(), nullptr,
                    nullptr, FALSE, CREATE_NO_WINDOW, nullptr, startFolder, &startup, &information);
            });
        if (error == ERROR_SUCCESS)
            CloseHandle(information.hThread);
        return error == ERROR_SUCCESS ? Seen(ExitCode(TestHandle(information.hProcess)))
                                      : Seen(error, information.hProcess, information.hThread,
                                            information.dwProcessId, information.dwThreadId);
    };
    const auto fails = [](DWORD error) { return Seen(error, nullptr, nullptr, 0, 0); };
    const auto failsUnderWine = [&child](DWORD error)
    { return Seen(error, child.c_str(), child.c_str(), 1, 1); };
    DWORD bytes = 0;
    const HANDLE text = CreateFileW(PathOf(L"text.exe").c_str(), GENERIC_WRITE, 0, nullptr,
        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    WriteFile(text, "some text", 9, &bytes, nullptr);
    CloseHandle(text);
    const StartResult ended = Start(child + L"exit 0");
    EXPECT_EQ(ExitCode(ended.process), 0);
    const auto self = static_cast<DWORD>(QCoreApplication::applicationPid());
    const TestHandle query(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, self));
    const TestHandle reader(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, self));
    wchar_t path[MAX_PATH];
    DWORD id = 0;
    const auto executable = [&](HANDLE process, DWORD size)
    { return ErrorOf([&] { return K32GetModuleFileNameExW(process, nullptr, path, size); }); };
    const auto cut = [&](DWORD size)
    {
        SetLastError(ERROR_SUCCESS);
        const DWORD length = K32GetModuleFileNameExW(reader.Get(), nullptr, path, size);
        return Seen(length, GetLastError());
    };
    const QString formerFolder = QDir::currentPath();
    QDir::setCurrent(QString::fromStdWString(PathOf(L"")));
    Check({
        {"A failure clears the information", start(nullptr, PathOf(L"none.exe")),
            fails(ERROR_FILE_NOT_FOUND), failsUnderWine(ERROR_FILE_NOT_FOUND)},
        {"A name is searched", start(nullptr, L"no-such-program /S"), fails(ERROR_FILE_NOT_FOUND),
            failsUnderWine(ERROR_FILE_NOT_FOUND)},
        {"A text is no program", start(nullptr, PathOf(L"text.exe")), fails(ERROR_BAD_EXE_FORMAT)},
        {"It must not be empty", start(L"", L""), fails(ERROR_PATH_NOT_FOUND)},
        {"The folder to start in is there", start(nullptr, child + L"exit 0", L"none"),
            fails(ERROR_DIRECTORY), failsUnderWine(ERROR_DIRECTORY)},
        {"An unquoted name may hold blanks", start(nullptr, blanks + L" exit 5"), Seen(5)},
        {"The shortest that is there counts", start(nullptr, one + L" words.exe wait"), Seen(99)},
        {"Quotes keep it together", start(nullptr, L"\"" + one + L" words.exe\" exit 3"), Seen(3)},
        {"Its extension may be missing", start(nullptr, one + L" exit 4"), Seen(4)},
        {"A relative name begins in the caller's folder",
            start(nullptr, L"sub\\child.exe exit 5", folder.c_str()), Seen(5)},
        {"So does an application's", start(L"sub\\child.exe", L"x exit 6", folder.c_str()),
            Seen(6)},
        {"Number 0 is no process", Seen(ErrorOf([] { return OpenProcess(SYNCHRONIZE, FALSE, 0); })),
            Seen(ERROR_INVALID_PARAMETER)},
        {"A process ends once",
            Seen(ErrorOf([&] { return TerminateProcess(ended.process.Get(), 1); })),
            Seen(ERROR_ACCESS_DENIED), Seen(0)},
        {"Waiting is a right",
            Seen(ErrorOf([&] { return WaitForSingleObject(query.Get(), 0) != WAIT_FAILED; })),
            Seen(ERROR_ACCESS_DENIED)},
        {"A list may have no room", Seen(K32EnumProcesses(nullptr, 0, &bytes), bytes),
            Seen(TRUE, 0)},
        {"Or too little", Seen(K32EnumProcesses(&id, sizeof id, &bytes), bytes),
            Seen(TRUE, sizeof id)},
        {"Null has no executable", Seen(executable(nullptr, MAX_PATH)), Seen(ERROR_INVALID_HANDLE)},
        {"Reading it is a right", Seen(executable(query.Get(), MAX_PATH)),
            Seen(ERROR_ACCESS_DENIED)},
        {"A cut path is no error", cut(5), Seen(5, 0)},
    });
    QDir::setCurrent(formerFolder);
}

TEST_F(WindowsFactsTest, OfMutexes)
{
    const auto create = [](const wchar_t* name, TestHandle& mutex)
    {
        SetLastError(ERROR_GEN_FAILURE);
        mutex = TestHandle(CreateMutexW(nullptr, FALSE, name));
        return Seen(mutex.Get(), GetLastError());
    };
    TestHandle mutexes[4];
    const auto made = Seen(mutexes, 0);
    const auto found = Seen(mutexes, ERROR_ALREADY_EXISTS);
    Check({
        {"A mutex is made", create(L"VorlanTest {\u00e4/*}", mutexes[0]), made},
        {"It is there for the next one", create(L"VorlanTest {\u00e4/*}", mutexes[1]), found},
        {"Case counts", create(L"VorlanTest {\u00c4/*}", mutexes[2]), made},
    });
    mutexes[0].Close();
    Check({
        {"It outlives its first handle", create(L"Local\\VorlanTest {\u00e4/*}", mutexes[3]),
            found},
    });
    for (TestHandle& mutex : mutexes)
        mutex.Close();
    Check({{"It goes with the last one", create(L"VorlanTest {\u00e4/*}", mutexes[0]), made}});
}

TEST_F(WindowsFactsTest, OfTheShell)
{
    const std::wstring child = CopyChild(L"sub/child.exe");
    const std::wstring folder = PathOf(L"sub");
    CopyChild(L"sub/child.vorlan");
    const auto execute = [](const std::wstring& file, const wchar_t* startFolder = nullptr,
                             const wchar_t* verb = nullptr, DWORD hotKey = 0,
                             DWORD mask = SEE_MASK_NOCLOSEPROCESS)
    {
        SHELLEXECUTEINFOW information = {};
        information.cbSize = sizeof information;
        information.fMask = mask | SEE_MASK_FLAG_NO_UI;
        information.lpVerb = verb;
        information.lpFile = file.c_str();
        information.lpParameters = L"exit 3";
        information.lpDirectory = startFolder;
        information.dwHotKey = hotKey;
        information.hProcess = HKEY_CURRENT_USER;
        const DWORD error = ErrorOf([&] { return ShellExecuteExW(&information); });
        return information.hProcess ? Seen(ExitCode(TestHandle(information.hProcess)))
                                    : Seen(error, nullptr);
    };
    const auto fails = [](DWORD error) { return Seen(error, nullptr); };
    Check({
        {"A program is started", execute(child), Seen(3)},
        {"There is no handle unless it is asked for", execute(child, nullptr, nullptr, 0, 0),
            Seen(0, nullptr)},
        {"Its name may stand in quotes", execute(L"\"" + child + L"\""), Seen(3)},
        {"Its arguments do not belong to it", execute(child + L" x"), fails(ERROR_FILE_NOT_FOUND)},
        {"It is searched where it starts", execute(L"child.exe", folder.c_str()), Seen(3)},
        {"But not beside the caller", execute(L"test-program.exe"), fails(ERROR_FILE_NOT_FOUND),
            Seen(3)},
        {"An empty verb is none", execute(child, nullptr, L""), Seen(3)},
        {"What the mask leaves out is not read", execute(child, nullptr, nullptr, 1), Seen(3)},
        {"A name's ending says what a file is", execute(PathOf(L"sub\\child.vorlan")),
            fails(ERROR_NO_ASSOCIATION), Seen(3)},
    });
}

TEST_F(WindowsFactsTest, OfLinksAndFolders)
{
    const ComThread com;
    TestLink link;
    wchar_t text[MAX_PATH] = L"old";
    const CLSID unknown = {0x5F0B7F3E, 0x1C2D, 0x4E5F, {0x80, 1, 2, 3, 4, 5, 6, 7}};
    const auto identity = [](IUnknown& face)
    {
        IUnknown* object = nullptr;
        EXPECT_EQ(face.QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&object)), S_OK);
        object->Release();
        return reinterpret_cast<uintptr_t>(object);
    };
    const auto create = [&text](REFCLSID classId, REFIID iid)
    {
        void* object = text;
        const HRESULT result =
            CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, iid, &object);
        return Seen(result, object);
    };
    // A result, and the text that the call left.
    const auto told = [&text](HRESULT result) { return Seen(result) + Shown(std::wstring(text)); };
    const auto arguments = [&](int size) { return told(link.Link().GetArguments(text, size)); };
    Check({
        {"A new link has no target", told(link.Link().GetPath(text, 4, nullptr, 0)), Seen(S_FALSE)},
        {"It has no arguments", arguments(4), Seen(S_OK)},
        {"It takes some", Seen(link.Link().SetArguments(L"abcdef")), Seen(S_OK)},
        {"They are cut where they do not fit", arguments(4), Seen(S_OK) + "abc"},
        {"A link is saved in a folder", Seen(link.Save(PathOf(L"none/a.lnk"))),
            Seen(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND))},
        {"It is loaded from a file", Seen(link.Load(PathOf(L"none.lnk"))),
            Seen(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND))},
        {"An unknown class", create(unknown, IID_IUnknown), Seen(REGDB_E_CLASSNOTREG, nullptr)},
        {"An unknown interface", create(CLSID_ShellLink, unknown), Seen(E_NOINTERFACE, nullptr)},
        {"All interfaces of an object lead to one", Seen(identity(link.File())),
            Seen(identity(link.Link()))},
        {"An object needs a place",
            Seen(CoCreateInstance(
                CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, nullptr)),
            Seen(E_POINTER)},
        {"A number without a folder has no path",
            told(SHGetSpecialFolderPathW(nullptr, text, 0xFFF, FALSE)), Seen(FALSE)},
    });
}

} // namespace
