#include "LogTail.h"

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int keptLines = 100;

QMutex mutex; // guards what follows, and the lines of the active tail
LogTail* activeTail = nullptr;
QtMessageHandler nextHandler = nullptr;

} // namespace

LogTail::LogTail()
{
    const QMutexLocker lock(&mutex);
    previousHandler = qInstallMessageHandler(&LogTail::HandleMessage);
    activeTail = this;
    nextHandler = previousHandler;
}

LogTail::~LogTail()
{
    qInstallMessageHandler(previousHandler);
    const QMutexLocker lock(&mutex);
    activeTail = nullptr;
}

QStringList LogTail::Lines() const
{
    const QMutexLocker lock(&mutex);
    return lines;
}

void LogTail::HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    QtMessageHandler next = nullptr;
    {
        const QMutexLocker lock(&mutex);
        next = nextHandler;
        if (activeTail != nullptr)
        {
            activeTail->lines << text;
            if (activeTail->lines.size() > keptLines)
                activeTail->lines.removeFirst();
        }
    }
    if (next != nullptr)
        next(type, context, text);
}

} // namespace Vorlan::FrontEnd
