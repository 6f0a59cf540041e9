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

TEST(ReadmeTest, ThePageOfTheCommandLineNamesEveryOptionAndExitCodeOfTheHelp)
{
    const QString page = TextOf("docs/command-line.md");
    const QString help = Vorlan::FrontEnd::HelpText();
    auto names = QRegularExpression("^  (/[A-Z_?]+=?|\\d+)", QRegularExpression::MultilineOption)
                     .globalMatch(help);
    int count = 0;
    for (; names.hasNext(); ++count)
    {
        const QString name = names.next().captured(1);
        const QString quoted = name.startsWith('/') ? '`' + name : "| " + name + " |";
        EXPECT_TRUE(page.contains(quoted)) << name.toStdString();
    }
    EXPECT_EQ(count, 18 + 8);
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
