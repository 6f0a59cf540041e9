#include "LogFile.h"

#include "support/Machine.h"

#include <QDebug>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <stdexcept>

namespace Vorlan::FrontEnd
{
namespace
{

QStringList LinesOf(const QString& path)
{
    return QString::fromUtf8(ReadFile(path)).split('\n');
}

TEST(LogFileTest, EveryLineCarriesTimeLevelAndText)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.log");
    {
        const LogFile log(path);
        qDebug() << "first" << 1;
        qInfo() << QString::fromUtf8("größer");
        qWarning("third");
        qCritical("fourth");
    }
    const QStringList lines = LinesOf(path);
    const QStringList ends{"debug    first 1", QString::fromUtf8("info     \"größer\""),
        "warning  third", "critical fourth"};
    ASSERT_EQ(lines.size(), ends.size() + 1);
    const QRegularExpression time("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} ");
    for (int i = 0; i < ends.size(); ++i)
    {
        EXPECT_TRUE(time.match(lines[i]).hasMatch()) << lines[i].toStdString();
        EXPECT_EQ(lines[i].mid(24), ends[i]);
    }
}

TEST(LogFileTest, ARepeatedLineIsWrittenOnceAndCounted)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.log");
    {
        const LogFile log(path);
        for (const char* text : {"wait", "wait", "wait", "done", "wait", "wait"})
        {
            qInfo("%s", text);
        }
    }
    QStringList ends;
    for (const QString& line : LinesOf(path))
    {
        ends += line.startsWith(' ') ? line : line.mid(33);
    }
    EXPECT_EQ(ends, QStringList({"wait", "  (the same line 2 times more)", "done", "wait",
                        "  (the same line 1 times more)", ""}));
}

TEST(LogFileTest, ALaterLogIsAppended)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.log");
    for (const char* text : {"one", "two"})
    {
        const LogFile log(path);
        qInfo("%s", text);
    }
    const QStringList lines = LinesOf(path);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].endsWith("one"));
    EXPECT_TRUE(lines[1].endsWith("two"));
}

TEST(LogFileTest, AFileThatCannotBeOpenedIsNamed)
{
    const QTemporaryDir folder;
    const QString path = QDir::toNativeSeparators(folder.filePath("missing/run.log"));
    try
    {
        const LogFile log(path);
        FAIL() << "opened " << path.toStdString();
    }
    catch (const std::runtime_error& error)
    {
        const QString text = error.what();
        EXPECT_TRUE(text.startsWith("The log file " + path + " cannot be opened ("));
        EXPECT_TRUE(text.endsWith("choose another with /LOG=<file>."));
    }
}

TEST(LogFileTest, TheDefaultNameHasProductActionAndTime)
{
    const QDateTime time(QDate(2024, 3, 9), QTime(7, 5, 1, 42));
    EXPECT_EQ(LogFile::DefaultPath("install", time),
        QDir::tempPath() + "/Vorlan Quillax install 2024-03-09 07-05-01-042.log");
}

} // namespace
} // namespace Vorlan::FrontEnd
