#pragma once

#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QString>

namespace Vorlan::FrontEnd
{

// Writes every line of Qt's message logger to a file, from construction to destruction: time,
// level, text. A directly repeated line is written once, followed by the number of repetitions. At
// most one log at a time; lines may be logged on any thread.
class LogFile
{
public:
    // A file in the temporary folder, named after product, action and time.
    static QString DefaultPath(const QString& action, const QDateTime& time);

    // Appends to `path`, whose folder must exist. Throws std::runtime_error with one line for the
    // user if the file cannot be opened.
    explicit LogFile(const QString& path);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    QString Path() const;

private:
    static void HandleMessage(
        QtMsgType type, const QMessageLogContext& context, const QString& text);
    void WriteLine(QtMsgType type, const QString& text);
    void WriteRepetitions();

    QFile file;
    QString lastText;
    int repetitions = 0;
    QMutex mutex;
    QtMessageHandler previousHandler = nullptr;
};

} // namespace Vorlan::FrontEnd
