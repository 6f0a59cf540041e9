#include "platform/Path.h"

#include "support/Machine.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(Path, JoinsAppendsAndTellsWhatExists)
{
    const Machine machine;
    WriteFile(machine.Path("\u30D5\u30A1.txt"), "");
    const ioPath folder(machine.Path("").toStdString());
    EXPECT_TRUE((folder / "\xE3\x83\x95\xE3\x82\xA1.txt").exists());
    EXPECT_TRUE(ioPath::exists(folder));
    EXPECT_FALSE(ioPath::exists(folder / "missing"));
    EXPECT_FALSE(ioPath().exists());
    EXPECT_EQ((ioPath("icons/.mp4") + ".ico").utf8string(), "icons/.mp4.ico");
}

TEST(Path, EncodingsConvertBothWaysAndRefuseBrokenText)
{
    const std::string utf8 = "a\xC3\xA9\xF0\x9F\x8E\xAC";
    const std::wstring utf16 = L"a\u00E9\xD83C\xDFAC";
    EXPECT_EQ(Core::WstringFromUtf8(utf8), utf16);
    EXPECT_EQ(Core::Utf8FromWstring(utf16), utf8);
    for (const char* broken : {"\xFF", "\xC3", "\xC0\x80", "a\xE3\x83"})
        EXPECT_THROW(Core::WstringFromUtf8(broken), std::range_error) << broken;
    EXPECT_THROW(Core::Utf8FromWstring(L"\xD83C"), std::range_error);
}

TEST(Path, WideTextIsUtf16UnitsOrUtf32)
{
    const QString text = QString::fromUtf8("a\xC3\xA9\xF0\x9F\x8E\xAC");
    EXPECT_EQ(Platform::WideFromText(text), L"a\u00E9\xD83C\xDFAC");
    EXPECT_EQ(Platform::TextFromWide(L"a\u00E9\xD83C\xDFAC"), text);
    EXPECT_EQ(Platform::TextFromWide(L"a\u00E9\U0001F3AC"), text);
}

TEST(Path, EachReasonAgainstAFolderHasItsState)
{
    const Machine machine;
    WriteFile(machine.Path("file"), "");
    EXPECT_EQ(Util::IsThisPathValid(machine.Path("new/deep/folder/")), PathValidationState::Valid);
    EXPECT_EQ(Util::IsThisPathValid(machine.Path("")), PathValidationState::Valid);
    EXPECT_EQ(Util::IsThisPathValid("folder/below"), PathValidationState::NotAbsolute);
    EXPECT_EQ(
        Util::IsThisPathValid(machine.Path("folder") + "/a:b"), PathValidationState::ForbiddenName);
    EXPECT_EQ(Util::IsThisPathValid(machine.Path("file/x")), PathValidationState::NotAFolder);
}

TEST(Path, FreeSpaceIsAskedOfTheNearestFolderThatExists)
{
    const Machine machine;
    const ioPath existing(machine.Path("").toStdString());
    EXPECT_GT(Util::GetAvailableDiskSpace(existing / "not" / "there"), 0);
}
