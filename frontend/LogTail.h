#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// Keeps the last lines of Qt's message logger, from construction to destruction, and passes every
// line on to the handler that was installed before. At most one at a time; lines may be logged on
// any thread.
class LogTail
{
public:
    LogTail();
    ~LogTail();
    LogTail(const LogTail&) = delete;
    LogTail& operator=(const LogTail&) = delete;

    // The oldest line first.
    QStringList Lines() const;

private:
    static void HandleMessage(
        QtMsgType type, const QMessageLogContext& context, const QString& text);

    QStringList lines;
    QtMessageHandler previousHandler = nullptr;
};

} // namespace Vorlan::FrontEnd
