#include "support/PalMachine.h"
#include "support/ShellLinks.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <Pal.h>

namespace
{

class ShellLinksLinuxTest : public PalMachine
{
protected:
    QString FilePath(const char* name) const { return QString::fromStdWString(PathOf(L"")) + name; }

    QByteArray SavedLink()
    {
        TestLink link;
        link.Link().SetPath(L"\\opt\\\u00fcbung\\quill.exe");
        link.Link().SetWorkingDirectory(L"\\opt\\\u00fcbung");
        link.Link().SetArguments(L"\"a b\" c");
        EXPECT_EQ(link.Save(PathOf(L"a.lnk")), S_OK);
        QFile file(FilePath("a.lnk"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // What a link says that has these bytes: its texts, or "(refused)".
    std::wstring TextsOf(const QByteArray& bytes)
    {
        QFile file(FilePath("b.lnk"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        file.close();
        TestLink link;
        const HRESULT result = link.Load(PathOf(L"b.lnk"));
        EXPECT_TRUE(result == S_OK || result == E_FAIL) << result;
        return result == S_OK
                   ? link.Path() + L"|" + link.WorkingDirectory() + L"|" + link.Arguments()
                   : L"(refused)";
    }

    const ComThread comThread;
};

constexpr wchar_t savedTexts[] = L"\\opt\\\u00fcbung\\quill.exe|\\opt\\\u00fcbung|\"a b\" c";

TEST_F(ShellLinksLinuxTest, AnotherProgramReadsTheSameTexts)
{
    const QString program = QStandardPaths::findExecutable("lnkinfo");
    if (program.isEmpty())
        GTEST_SKIP() << "lnkinfo is not installed: tools/setup installs liblnk-utils";
    SavedLink();
    QProcess process;
    process.start(program, {FilePath("a.lnk")});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    QStringList lines;
    for (const QString& line : QString::fromUtf8(process.readAllStandardOutput()).split('\n'))
        lines += line.simplified();
    for (const char* expected :
        {"Local path : \\opt\\\u00fcbung\\quill.exe", "Working directory : \\opt\\\u00fcbung",
            "Command line arguments : \"a b\" c", "Drive type : Fixed (3)"})
        EXPECT_TRUE(lines.contains(expected)) << expected << "\n" << lines.join("\n").toStdString();
}

TEST_F(ShellLinksLinuxTest, EveryCharacterOfATargetIsKept)
{
    const std::wstring target = L"\\\u00e4\u0434\u6df1\U0001F3B5\\a.exe";
    TestLink saved;
    EXPECT_EQ(saved.Link().SetPath(target.c_str()), S_OK);
    ASSERT_EQ(saved.Save(PathOf(L"a.lnk")), S_OK);
    TestLink loaded;
    ASSERT_EQ(loaded.Load(PathOf(L"a.lnk")), S_OK);
    EXPECT_EQ(loaded.Path(), target);
}

TEST_F(ShellLinksLinuxTest, ALinkThatIsCutOffIsRefusedWhereverItEnds)
{
    const QByteArray whole = SavedLink();
    EXPECT_EQ(TextsOf(whole), savedTexts);
    const int withoutExtraData = whole.size() - 4;
    for (int size = 0; size < withoutExtraData; ++size)
        ASSERT_EQ(TextsOf(whole.left(size)), L"(refused)") << size;
}

TEST_F(ShellLinksLinuxTest, AnyByteMayBeWrongWithoutHarm)
{
    const QByteArray whole = SavedLink();
    int refused = 0;
    for (int position = 0; position < whole.size(); ++position)
    {
        QByteArray wrong = whole;
        wrong[position] = static_cast<char>(0xFF);
        refused += TextsOf(wrong) == L"(refused)";
    }
    EXPECT_GE(refused, 20); // the header's size and class alone
}

TEST_F(ShellLinksLinuxTest, ItemListsOtherTextsAnd8BitTextsOfOtherWritersAreUnderstood)
{
    QByteArray link = SavedLink().left(0x4C);
    link[20] = static_cast<char>(0x01 | 0x02 | 0x04 | 0x10 | 0x20);
    link += QByteArray("\x06\0"
                       "\x04\0"
                       "xx\0\0",
        8);
    link += QByteArray("\x36\0\0\0"
                       "\x1C\0\0\0"
                       "\x01\0\0\0"
                       "\x1C\0\0\0"
                       "\x2D\0\0\0",
        20);
    link += QByteArray("\0\0\0\0"
                       "\x31\0\0\0",
        8);
    link += QByteArray("\x11\0\0\0\x03\0\0\0\0\0\0\0\x10\0\0\0\0", 17);
    link += QByteArray("C:\\\0"
                       "a\\b\0\0",
        9);
    link += QByteArray("\x04\0name"
                       "\x02\0C:"
                       "\x02\0/S",
        14);
    EXPECT_EQ(TextsOf(link), L"C:\\a\\b|C:|/S");
}

TEST_F(ShellLinksLinuxTest, ATextThatDoesNotFitTheFormatIsNotSaved)
{
    TestLink link;
    link.Link().SetArguments(std::wstring(65535, L'x').c_str());
    EXPECT_EQ(link.Save(PathOf(L"a.lnk")), S_OK);
    link.Link().SetArguments(std::wstring(65536, L'x').c_str());
    EXPECT_EQ(link.Save(PathOf(L"a.lnk")), HRESULT_FROM_WIN32(ERROR_FILENAME_EXCED_RANGE));
    TestLink loaded;
    EXPECT_EQ(loaded.Load(PathOf(L"a.lnk")), S_OK);
    EXPECT_EQ(loaded.Arguments().size(), 2047u);
}

TEST_F(ShellLinksLinuxTest, AFailedSaveTellsTheLastErrorAndLeavesNothingBehind)
{
    TestLink link;
    ASSERT_TRUE(QDir().mkpath(FilePath("folder.lnk/full")));
    SetLastError(ERROR_SUCCESS);
    EXPECT_TRUE(FAILED(link.Save(PathOf(L"folder.lnk"))));
    EXPECT_NE(GetLastError(), DWORD{ERROR_SUCCESS});
    EXPECT_EQ(QDir(FilePath("")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList("folder.lnk"));
}

} // namespace
