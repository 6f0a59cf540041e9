#pragma once

#include <QEventLoop>
#include <QFutureWatcher>
#include <QtConcurrent>

#include <type_traits>

namespace Vorlan::FrontEnd
{

// Calls the function on another thread and returns its result; processes events meanwhile, so that
// windows stay responsive. On the GUI thread only. The function must not throw.
template <typename Function>
auto Await(Function function)
{
    using Result = decltype(function());
    QFutureWatcher<Result> watcher;
    QEventLoop waiting;
    QObject::connect(&watcher, &QFutureWatcher<Result>::finished, &waiting, &QEventLoop::quit);
    watcher.setFuture(QtConcurrent::run(function));
    waiting.exec();
    if constexpr (!std::is_void_v<Result>)
        return watcher.result();
}

} // namespace Vorlan::FrontEnd
