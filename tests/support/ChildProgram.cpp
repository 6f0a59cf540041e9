#include "support/ChildProgram.h"

#include "support/Machine.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <thread>

namespace
{

constexpr int timeLimitMs = 60000;

} // namespace

ChildProgram::ChildProgram(const QString& programPath, const QByteArray& orders) : path(programPath)
{
    QDir().mkpath(QFileInfo(path).path());
    EXPECT_TRUE(QFile::copy(QCoreApplication::applicationDirPath() + "/test-program.exe", path))
        << path.toStdString();
    WriteFile(path + ".does", orders);
}

ChildProgram::~ChildProgram()
{
    process.kill();
    process.waitForFinished(timeLimitMs);
}

void ChildProgram::Start(const QStringList& arguments)
{
    process.start(path, arguments);
    ASSERT_TRUE(process.waitForStarted(timeLimitMs)) << process.errorString().toStdString();
    WaitForRun();
}

void ChildProgram::WaitForRun() const
{
    const QDeadlineTimer deadline(timeLimitMs);
    while (!WasRun() && !deadline.hasExpired())
        std::this_thread::yield();
    ASSERT_TRUE(WasRun());
}

bool ChildProgram::HasEnded()
{
    return process.state() == QProcess::NotRunning || process.waitForFinished(timeLimitMs);
}

bool ChildProgram::WasRun() const
{
    return QFile::exists(path + ".args");
}

QStringList ChildProgram::Arguments() const
{
    return QString::fromUtf8(ReadFile(path + ".args")).split('\n', Qt::SkipEmptyParts);
}
