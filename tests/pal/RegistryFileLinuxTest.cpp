#include "support/LinuxProcesses.h"
#include "support/RegistryFiles.h"

#include <csignal>

#include <sys/resource.h>

namespace
{

using Names = std::vector<std::wstring>;
using namespace std::string_literals;

const std::string header = "Windows Registry Editor Version 5.00\n\n";
// Keys that every Windows has.
const std::string commonKeys =
    "[HKEY_CURRENT_USER\\Software]\n\n"
    "[HKEY_CURRENT_USER\\Software\\Microsoft]\n\n"
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows]\n\n"
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion]\n\n"
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run]\n\n";

class RegistryFileLinuxTest : public RegistryFiles
{
};

TEST_F(RegistryFileLinuxTest, KeysAndValuesAreWrittenInRegeditsFormat)
{
    SetText(Key(), L"plain", L"C:\\dir\\\"x\"");
    SetText(Key(), L"", L"\u4e2d \U0001F3B5");
    SetWide(Key(), L"cut", REG_SZ, L"ab");
    SetText(Key(), L"open", L"soon");
    SetText(Key(), L"gone", L"soon");
    SetText(Key(), L"lines", L"a\r\nb");
    SetWide(Key(), L"expand", REG_EXPAND_SZ, L"%A%\0"s);
    SetWide(Key(), L"multi", REG_MULTI_SZ, L"a\0b\0\0"s);
    SetBytes(Key(), L"number", REG_DWORD, {0x78, 0x56, 0x34, 0x12});
    SetBytes(Key(), L"short", REG_DWORD, {1, 2});
    SetBytes(Key(), L"wide", REG_QWORD, {8, 7, 6, 5, 4, 3, 2, 1});
    SetBytes(Key(), L"none", REG_NONE, {});
    SetBytes(Key(), L"long", REG_BINARY, std::vector<BYTE>(50, 0xAB));
    RegDeleteValueW(Key(), L"gone");
    SetText(Key(), L"open", L"and closed");
    for (const wchar_t* name : {L"zeta", L"Beta\\gone", L"Beta\\Key"})
        RegCloseKey(MakeKey(Key(), name));
    RegDeleteKeyW(Key(), L"Beta\\gone");

    const std::string key = "[HKEY_CURRENT_USER\\Software\\VorlanPalTests";
    const std::string expected =
        header + "[HKEY_CURRENT_USER]\n\n" + commonKeys + key +
        "]\n"
        "\"plain\"=\"C:\\\\dir\\\\\\\"x\\\"\"\n"
        "@=\"\u4e2d \U0001F3B5\"\n"
        "\"cut\"=hex(1):61,00,62,00\n"
        "\"open\"=\"and closed\"\n"
        "\"lines\"=hex(1):61,00,0d,00,0a,00,62,00,00,00\n"
        "\"expand\"=hex(2):25,00,41,00,25,00,00,00\n"
        "\"multi\"=hex(7):61,00,00,00,62,00,00,00,00,00\n"
        "\"number\"=dword:12345678\n"
        "\"short\"=hex(4):01,02\n"
        "\"wide\"=hex(b):08,07,06,05,04,03,02,01\n"
        "\"none\"=hex(0):\n"
        "\"long\"=hex:ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,\\\n"
        "  ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,\\\n"
        "  ab,ab,ab\n\n" +
        key + "\\Beta]\n\n" + key + "\\Beta\\Key]\n\n" + key + "\\zeta]\n\n";
    EXPECT_EQ(Text(), expected);

    ReadAnew();
    const HKEY again = MakeKey(HKEY_CURRENT_USER, keyPath);
    EXPECT_EQ(ValueNames(again), (Names{L"plain", L"", L"cut", L"open", L"lines", L"expand",
                                     L"multi", L"number", L"short", L"wide", L"none", L"long"}));
    EXPECT_EQ(TextOf(again, L""), L"\u4e2d \U0001F3B5");
    EXPECT_EQ(SeeValue(again, L"multi")->Text(), L"a\0b\0\0"s);
    EXPECT_EQ(SeeValue(again, L"short")->data, (std::vector<BYTE>{1, 2}));
    EXPECT_EQ(SeeValue(again, L"long")->data, std::vector<BYTE>(50, 0xAB));
    EXPECT_EQ(SubKeyNames(again), (Names{L"Beta", L"zeta"}));
    RegCloseKey(again);
}

TEST_F(RegistryFileLinuxTest, TheRunKeyIsThereInBothRootsUntilSomebodyDeletesIt)
{
    constexpr wchar_t path[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\";
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        HKEY key = nullptr;
        ASSERT_EQ(RegOpenKeyExW(root, path, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
        EXPECT_EQ(SetText(key, L"Quill", L"quill.exe"), ERROR_SUCCESS);
        RegCloseKey(key);
        EXPECT_EQ(RegDeleteKeyW(root, path), ERROR_SUCCESS);
        ReadAnew();
        EXPECT_EQ(RegOpenKeyExW(root, path, 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    }
}

TEST_F(RegistryFileLinuxTest, ValuesAreListedInTheOrderTheyWereMade)
{
    for (const wchar_t* name : {L"c", L"a", L"b"})
        SetText(Key(), name, name);
    SetText(Key(), L"c", L"changed");
    EXPECT_EQ(ValueNames(Key()), (Names{L"c", L"a", L"b"}));
    EXPECT_EQ(RegDeleteValueW(Key(), L"A"), ERROR_SUCCESS);
    SetText(Key(), L"a", L"again");
    EXPECT_EQ(ValueNames(Key()), (Names{L"c", L"b", L"a"}));
}

TEST_F(RegistryFileLinuxTest, AFileEditedByHandIsRead)
{
    PutFile(DiskForm(header + "; a comment\n"
                              "[HKEY_CURRENT_USER\\A]\n"
                              "@=\"default\"\n"
                              "\"hex\"=hex:0A,\\\n  0b\n"
                              "\"escapes\"=\"\\\\a\\r\\n\\\"\"\n"
                              "\"gone\"=\"soon\"\n\n\n"
                              "[hkey_current_user\\a\\B]\n\n"
                              "[HKEY_CURRENT_USER\\A]\n"
                              "\"gone\"=-\n\n"
                              "[-HKEY_CURRENT_USER\\A\\B]\n\n"
                              "[HKEY_CURRENT_USER\\C]\n"
                              "\"number\"=dword:000000fF\n\n"));
    const HKEY a = MakeKey(HKEY_CURRENT_USER, L"A");
    const HKEY c = MakeKey(HKEY_CURRENT_USER, L"C");
    EXPECT_EQ(ValueNames(a), (Names{L"", L"hex", L"escapes"}));
    EXPECT_EQ(TextOf(a, L"escapes"), L"\\a\r\n\"");
    EXPECT_EQ(SubKeyNames(a), Names{});
    EXPECT_EQ(SeeValue(a, L"hex")->data, (std::vector<BYTE>{0x0A, 0x0B}));
    EXPECT_EQ(SeeValue(c, L"number")->data, (std::vector<BYTE>{0xFF, 0, 0, 0}));
    RegCloseKey(a);
    RegCloseKey(c);
    PutFile(DiskForm(header + "[HKEY_CURRENT_USER\\Software\\VorlanPalTests]\n"));
}

TEST_F(RegistryFileLinuxTest, ADamagedFileIsReportedAndSetAsideNeverOverwritten)
{
    const std::string key = "[HKEY_CURRENT_USER\\A]\n";
    const QByteArray damaged[] = {
        "",
        DiskForm(header).mid(2),
        DiskForm("REGEDIT4\n\n"),
        DiskForm(header + "\"value\"=\"before any key\"\n\n"),
        DiskForm(header + "[HKEY_LOCAL_MACHINE\\A]\n\n"),
        DiskForm(header + "[HKEY_CURRENT_USER\\A\n\n"),
        DiskForm(header + "[-HKEY_CURRENT_USER]\n\n"),
        DiskForm(header + key + "\"value\"=\"no end\n\n"),
        DiskForm(header + key + "\"value\"=\"text\" more\n\n"),
        DiskForm(header + key + "\"value\"=dword:xyz\n\n"),
        DiskForm(header + key + "\"value\"=hex:00,1g\n\n"),
        DiskForm(header + key + "\"value\"=hex(b:00\n\n"),
        DiskForm(header + key + "\"value\"=hex:00,\\\n\n"),
        DiskForm(header + key + "garbage\n\n"),
    };
    int number = 0;
    for (const QByteArray& content : damaged)
    {
        PutFile(content);
        const WarningLog log;
        const HKEY root = MakeKey(HKEY_CURRENT_USER, L"");
        ASSERT_NE(root, nullptr);
        EXPECT_EQ(SubKeyNames(root), Names{L"Software"});
        const QString aside = FilePath() + ".damaged-" + QString::number(++number);
        EXPECT_EQ(WarningLog::Lines(),
            QStringList{"Registry file is damaged and was set aside: " + aside});
        EXPECT_EQ(Bytes(aside), content) << number;
        EXPECT_EQ(SetText(root, L"value", L"goes on"), ERROR_SUCCESS);
        EXPECT_EQ(Text(), header + "[HKEY_CURRENT_USER]\n\"value\"=\"goes on\"\n\n" + commonKeys);
        RegCloseKey(root);
    }
    EXPECT_EQ(number, 14);
}

TEST_F(RegistryFileLinuxTest, AnUnreadableFileIsAnErrorAndOneWarning)
{
    QFile::remove(FilePath());
    ASSERT_TRUE(QDir().mkdir(FilePath()));
    {
        const WarningLog log;
        HKEY key = nullptr;
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(
                RegOpenKeyExW(HKEY_CURRENT_USER, keyPath, 0, KEY_READ, &key), ERROR_ACCESS_DENIED);
        EXPECT_EQ(WarningLog::Lines(), QStringList{"Registry file cannot be read: " + FilePath()});
    }
    ASSERT_TRUE(QDir().rmdir(FilePath()));
}

TEST_F(RegistryFileLinuxTest, AWriteThatFailsHalfwayLeavesTheOldContent)
{
    SetText(Key(), L"value", L"old");
    const QByteArray before = Bytes(FilePath());
    const HKEY key = Key();
    const auto writeWithLittleRoom = [key, &before]
    {
        std::signal(SIGXFSZ, SIG_IGN);
        const auto room = static_cast<rlim_t>(before.size()) + 10;
        const rlimit limit = {room, room};
        setrlimit(RLIMIT_FSIZE, &limit);
        const WarningLog log;
        int wrong = SetText(key, L"value", L"much longer") == ERROR_FILE_TOO_LARGE ? 0 : 1;
        wrong += SetText(key, L"other", L"new") == ERROR_FILE_TOO_LARGE ? 0 : 2;
        wrong += TextOf(key, L"value") == L"old" ? 0 : 4;
        return wrong + (WarningLog::Lines().size() == 1 ? 0 : 8);
    };
    EXPECT_EQ(WaitForChild(StartChild(writeWithLittleRoom)), 0);
    EXPECT_EQ(Bytes(FilePath()), before);
    EXPECT_EQ(TextOf(Key(), L"value"), L"old");
}

TEST_F(RegistryFileLinuxTest, AnotherMachineRootIsAnotherRegistryAtOnce)
{
    SetText(Key(), L"where", L"first");
    const QByteArray machine = qgetenv("VORLAN_MACHINE");
    qputenv("VORLAN_MACHINE", machine + "-second");
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, keyPath, 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    EXPECT_TRUE(QDir(machine + "-second/Windows/System32").exists());
    EXPECT_EQ(TextOf(Key(), L"where"), L"first");
    qputenv("VORLAN_MACHINE", machine);
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, keyPath, 0, KEY_READ, &key), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(key, L"where"), L"first");
    RegCloseKey(key);
}

} // namespace
