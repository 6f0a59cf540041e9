#include "ResponseFile.h"

#include "support/Machine.h"

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;

namespace
{

class ResponseFileTest : public testing::Test
{
protected:
    ParsedCommandLine Load(const QByteArray& content, const QStringList& words = {}) const
    {
        WriteFile(path, content);
        return ResponseFile(path).Complete(ParseCommandLine(words).options);
    }

    Machine machine;
    const QString path = machine.Path("answers.inf");
};

TEST_F(ResponseFileTest, CompletesTheCommandLine)
{
    const QByteArray content = "\xEF\xBB\xBF; for the lab\r\n[setup]\r\nDir = D:\\My Media \r\n"
                               "LANG=de_DE\r\n# choices\r\nscope=ALLUSERS\r\nShortcuts=no\r\n"
                               "ContextMenu=Yes\r\n\r\nStatistics=no\r\n";
    ParsedCommandLine parsed = Load(content, {"/S"});
    EXPECT_EQ(parsed.error, "");
    EXPECT_EQ(WordsFor(parsed.options).join(' '),
        "/S /D=D:\\My Media /LANG=de_DE /ALLUSERS /SHORTCUTS=no /CONTEXTMENU=yes /STATISTICS=no");
    parsed = Load(content, {"/D=E:\\", "/CURRENTUSER", "/SHORTCUTS=yes"});
    EXPECT_EQ(parsed.error, "");
    EXPECT_EQ(WordsFor(parsed.options).join(' '),
        "/D=E:\\ /LANG=de_DE /CURRENTUSER /SHORTCUTS=yes /CONTEXTMENU=yes /STATISTICS=no");
}

TEST_F(ResponseFileTest, AWrongLineIsNamed)
{
    const QString file = "The response file " + QDir::toNativeSeparators(path);
    EXPECT_EQ(Load("[Setup]\nLang=de_DE\nFoo=1\n").error, file + ", line 3: unknown key or scope");
    EXPECT_EQ(Load("[Setup]\nScope=me\n").error, file + ", line 2: unknown key or scope");
    EXPECT_EQ(
        Load("Lang=de_DE\n").error, file + ", line 1: \"key=value\" below [Setup] is expected");
    EXPECT_EQ(
        Load("[Setup]\nLang\n").error, file + ", line 2: \"key=value\" below [Setup] is expected");
    EXPECT_EQ(Load("[Other]\n").error, file + ", line 1: the only section is [Setup]");
    EXPECT_EQ(Load("[Setup]\nShortcuts=perhaps\n").error,
        file + ", line 2: The option /SHORTCUTS=perhaps has a wrong value: write "
               "/SHORTCUTS=yes|no.");
    EXPECT_TRUE(Load("[Setup]\nLang=sv_SE\n").error.contains("line 2: The option /LANG=sv_SE"));
    const QString error = ResponseFile(machine.Path("none.inf")).Complete({}).error;
    EXPECT_TRUE(error.contains("none.inf cannot be read")) << error.toStdString();
}

TEST_F(ResponseFileTest, WhatIsSavedIsRead)
{
    const QStringList words{"/D=D:\\My Media", "/LANG=fr_FR", "/CURRENTUSER", "/SHORTCUTS=no",
        "/CONTEXTMENU=yes", "/AUTOLAUNCH=no", "/STATISTICS=no"};
    EXPECT_EQ(ResponseFile(path).Save(ParseCommandLine(words + QStringList("/S")).options), "");
    const ParsedCommandLine parsed = ResponseFile(path).Complete({});
    EXPECT_EQ(parsed.error, "");
    EXPECT_EQ(WordsFor(parsed.options), words);
    EXPECT_TRUE(ResponseFile(machine.Path("no/a.inf")).Save({}).contains("cannot be written"));
}

} // namespace
