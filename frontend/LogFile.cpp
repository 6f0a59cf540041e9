#include "LogFile.h"

#include "base/ProductProfile.h"

#include <QDir>

#include <atomic>
#include <stdexcept>

namespace Vorlan::FrontEnd
{
namespace
{

std::atomic<LogFile*> activeLog{nullptr};

const char* LevelName(QtMsgType type)
{
    switch (type)
    {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        break;
    }
    return "fatal";
}

} // namespace

QString LogFile::DefaultPath(const QString& action, const QDateTime& time)
{
    const QString name =
        QString("%1 %2 %3.log")
            .arg(ProductProfile::productFullName, action, time.toString("yyyy-MM-dd hh-mm-ss-zzz"));
    return QDir(QDir::tempPath()).filePath(name);
}

LogFile::LogFile(const QString& path) : file(path)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
    {
        const QString error =
            QString("The log file %1 cannot be opened (%2): choose another with /LOG=<file>.")
                .arg(QDir::toNativeSeparators(path), file.errorString());
        throw std::runtime_error(error.toStdString());
    }
    activeLog = this;
    previousHandler = qInstallMessageHandler(&LogFile::HandleMessage);
}

LogFile::~LogFile()
{
    qInstallMessageHandler(previousHandler);
    activeLog = nullptr;
    WriteRepetitions();
}

QString LogFile::Path() const
{
    return QDir::toNativeSeparators(file.fileName());
}

void LogFile::HandleMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (LogFile* const log = activeLog)
    {
        log->WriteLine(type, text);
    }
}

void LogFile::WriteLine(QtMsgType type, const QString& text)
{
    const QString time = QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm:ss.zzz");
    const QString level = QString(LevelName(type)).leftJustified(8);
    const QMutexLocker lock(&mutex);
    if (text == lastText)
    {
        ++repetitions;
        return;
    }
    WriteRepetitions();
    lastText = text;
    file.write((time + ' ' + level + ' ' + text + '\n').toUtf8());
}

void LogFile::WriteRepetitions()
{
    if (repetitions != 0)
    {
        file.write(QString("  (the same line %1 times more)\n").arg(repetitions).toUtf8());
    }
    repetitions = 0;
}

} // namespace Vorlan::FrontEnd
