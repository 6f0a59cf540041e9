#include "CommandLine.h"

#include "support/Machine.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

QString TextOf(const QString& path)
{
    return QString::fromUtf8(ReadFile(PROJECT_SOURCES "/" + path));
}

TEST(ReadmeTest, QuotesTheEmbeddingExampleAsItIs)
{
    EXPECT_TRUE(TextOf("README.md")
                    .contains("```cpp\n" + TextOf("tests/support/EmbeddingExample.cpp") + "```\n"));
}

// The options in a text, "/D=<folder>" among them, sorted.
QString OptionsIn(const QString& text)
{
    QStringList options;
    auto found = QRegularExpression("(?<![\\w.])(/[A-Za-z_?]+(=[<>|a-z]+)?|--help)(?!\\w)")
                     .globalMatch(text);
    while (found.hasNext())
        options << found.next().captured(1).replace("--", "/");
    options.sort();
    return options.join(' ');
}

// The options of the page's table: what is in its first column.
QString OptionsOfThePage(const QString& page)
{
    const QString table = page.section("\n## Options\n", 1).section("\n## ", 0, 0);
    QStringList cells;
    auto rows =
        QRegularExpression("^\\| (`([^|\\\\]|\\\\\\|)*`) \\|", QRegularExpression::MultilineOption)
            .globalMatch(table);
    while (rows.hasNext())
        cells << rows.next().captured(1).replace("\\|", "|");
    return OptionsIn(cells.join(' '));
}

// The options of the help, with their other names.
QString OptionsOfTheHelp(const QString& help)
{
    QStringList usages;
    for (const QString& line : help.split('\n').filter(QRegularExpression("^  /")))
        usages << line.simplified().section(' ', 0, 0) << line.section(" (also ", 1);
    return OptionsIn(usages.join(' '));
}

// The numbers at the starts of lines, after `prefix`.
QStringList NumbersAfter(const QString& prefix, const QString& text)
{
    QStringList numbers;
    auto found = QRegularExpression(
        '^' + QRegularExpression::escape(prefix) + "(\\d+) ", QRegularExpression::MultilineOption)
                     .globalMatch(text);
    while (found.hasNext())
        numbers << found.next().captured(1);
    return numbers;
}

TEST(ReadmeTest, ThePageOfTheCommandLineAndTheHelpHaveTheSameOptionsAndExitCodes)
{
    const QString page = TextOf("docs/command-line.md");
    const QString help = Vorlan::FrontEnd::HelpText();
    EXPECT_EQ(OptionsOfThePage(page), OptionsOfTheHelp(help));
    EXPECT_EQ(NumbersAfter("| ", page), NumbersAfter("  ", help));
    EXPECT_TRUE(OptionsOfTheHelp(help).contains("/D=<folder> /DELETESETTINGS /DIR=<folder>"));
    EXPECT_TRUE(NumbersAfter("  ", help).contains("1603"));
}

TEST(ReadmeTest, ThePageForAdministratorsNamesWhatTheHelpHas)
{
    const QString page = TextOf("docs/deployment.md");
    const QString help = Vorlan::FrontEnd::HelpText();
    EXPECT_EQ(NumbersAfter("| ", page), NumbersAfter("  ", help));
    int count = 0;
    auto names = QRegularExpression("(?<![\\w\\\\/])/[A-Z]+(?![\\w\\\\/])").globalMatch(page);
    for (; names.hasNext(); ++count)
    {
        const QRegularExpression known(names.next().captured() + "[ =\\n,)]");
        EXPECT_TRUE(help.contains(known)) << known.pattern().toStdString();
    }
    EXPECT_GT(count, 20);
}

TEST(ReadmeTest, EveryLinkToAFileOfTheProjectLeadsToOne)
{
    const QStringList pages = QDir(PROJECT_SOURCES "/docs")
                                  .entryList({"*.md"})
                                  .replaceInStrings(QRegularExpression("^"), "docs/");
    int count = 0;
    for (const QString& page : pages + QStringList("README.md"))
    {
        const QDir folder = QFileInfo(PROJECT_SOURCES "/" + page).dir();
        auto links = QRegularExpression("\\[[^\\]]+\\]\\(([^)#:]+)[)#]").globalMatch(TextOf(page));
        for (; links.hasNext(); ++count)
        {
            const QString target = links.next().captured(1);
            EXPECT_TRUE(folder.exists(target)) << qPrintable(page + " -> " + target);
        }
    }
    EXPECT_GT(count, 50);
}

} // namespace
