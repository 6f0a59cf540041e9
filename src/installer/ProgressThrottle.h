#pragma once

#include <QDateTime>

#include <functional>
#include <utility>

namespace Vorlan
{

// Lets one of many progress reports through: when more than 10 ms have passed since the last one,
// or since construction.
class ProgressThrottle
{
public:
    using Clock = std::function<QDateTime()>;

    explicit ProgressThrottle(Clock clock = QDateTime::currentDateTime)
        : now(std::move(clock)), last(now())
    {
    }

    bool IsDue()
    {
        const QDateTime current = now();
        if (last.msecsTo(current) <= 10)
            return false;
        last = current;
        return true;
    }

private:
    Clock now;
    QDateTime last;
};

} // namespace Vorlan
