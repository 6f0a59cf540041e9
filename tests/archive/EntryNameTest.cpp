#include "archive/EntryName.h"

#include <gtest/gtest.h>

using Vorlan::AreEntryNamesSafe;

namespace
{

struct NameCase
{
    const char* what;
    std::wstring name;
    bool isSafe;
};

const NameCase nameCases[] = {
    {"a plain name", L"quill.exe", true},
    {"nested folders", L"libs/deep/er/codec one.dll", true},
    {"a leading dot", L".hidden/.config", true},
    {"other scripts", L"\u0434\u0430\u043D\u043D\u044B\u0435/\u30D5\u30A1.txt", true},
    {"a surrogate pair", L"\xD83C\xDFAC.mp4", true},
    {"a name that begins like a device", L"CONSOLE/nullable.txt", true},
    {"255 code units", std::wstring(255, L'x'), true},
    {"a folder entry", L"", true},
    {"an empty component", L"a//b", false},
    {"a trailing separator", L"a/", false},
    {"the folder itself", L"./a", false},
    {"a way out", L"../a", false},
    {"a way out further down", L"a/../../b", false},
    {"an absolute path", L"/etc/passwd", false},
    {"a drive", L"C:/Windows/a.dll", false},
    {"a drive-relative name", L"C:a.dll", false},
    {"a network share", L"//server/share/a", false},
    {"a backslash", L"a\\b", false},
    {"a way out with backslashes", L"..\\a", false},
    {"a long-path prefix", L"\\\\?\\C:\\a", false},
    {"an alternate stream", L"a.txt:stream", false},
    {"a control character", L"a\x01.txt", false},
    {"a line feed", L"a\nb", false},
    {"an embedded zero", std::wstring(L"a\0b", 3), false},
    {"a wildcard", L"a*.txt", false},
    {"a question mark", L"a?.txt", false},
    {"a quote", L"a\".txt", false},
    {"a redirection", L"a<b>.txt", false},
    {"a pipe", L"a|b", false},
    {"a device", L"NUL", false},
    {"a device with extension", L"libs/com1.txt", false},
    {"a device with blanks", L"aux .txt", false},
    {"a superscript device", L"LPT\u00B2", false},
    {"the console's input", L"conin$", false},
    {"a trailing dot", L"a.", false},
    {"a trailing blank", L"a /b", false},
    {"an unpaired high surrogate", L"a\xD83C", false},
    {"an unpaired low surrogate", L"\xDFAC.mp4", false},
    {"256 code units", std::wstring(256, L'x'), false},
};

} // namespace

TEST(EntryName, OnlyNamesThatStayBelowTheDestinationOnEverySystemAreSafe)
{
    for (const NameCase& test : nameCases)
        EXPECT_EQ(AreEntryNamesSafe({test.name}), test.isSafe) << test.what;
}

TEST(EntryName, NamesThatDifferOnlyInCaseAreNotSafeTogether)
{
    EXPECT_TRUE(AreEntryNamesSafe({L"a.txt", L"b.txt", L"", L""}));
    EXPECT_FALSE(AreEntryNamesSafe({L"a.txt", L"A.TXT"}));
    EXPECT_FALSE(AreEntryNamesSafe({L"\u0434/x", L"\u0414/X"}));
}

TEST(EntryName, KeysAreLowerCase)
{
    EXPECT_EQ(Vorlan::EntryKey(L"Libs/InstallerGUI.EXE"), L"libs/installergui.exe");
}
