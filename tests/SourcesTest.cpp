#include "support/Machine.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

QStringList EngineSources()
{
    QStringList files;
    for (QDirIterator file(
             PROJECT_SOURCES "/src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
         file.hasNext();)
        files += file.next();
    return files;
}

} // namespace

TEST(Sources, OnlyPlatformFilesAskForTheSystem)
{
    const QStringList files = EngineSources();
    EXPECT_GE(files.size(), 50);
    const QRegularExpression condition("^\\s*#\\s*(if|elif).*(_WIN|__linux|__MINGW|__unix|Q_OS_)",
        QRegularExpression::MultilineOption);
    EXPECT_TRUE(condition.match("x\n# if defined(Q_OS_WIN)").hasMatch());
    for (const QString& file : files)
    {
        const bool mayAsk = file.contains("/src/platform/");
        EXPECT_TRUE(mayAsk || !condition.match(ReadFile(file)).hasMatch()) << file.toStdString();
    }
}
