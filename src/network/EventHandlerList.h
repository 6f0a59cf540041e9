#pragma once

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace Vorlan::Core
{

// Calls handlers at once, on the caller's thread.
struct SyncExecutePolicy
{
    template <typename Handler, typename Call>
    static void Execute(Handler& handler, const Call& call)
    {
        call(handler);
    }
};

// Handlers in the order in which they were added, each once. They are not owned. Any thread.
template <typename Handler, typename ExecutePolicy>
class EventHandlerList
{
public:
    // Nothing happens for a null handler, or for one that is there already.
    void Add(Handler* handler)
    {
        const std::lock_guard lock(mutex);
        if (handler && std::find(handlers.begin(), handlers.end(), handler) == handlers.end())
            handlers.push_back(handler);
    }

    // Nothing happens for a null handler, or for one that is not there.
    void Remove(Handler* handler)
    {
        const std::lock_guard lock(mutex);
        handlers.erase(std::remove(handlers.begin(), handlers.end(), handler), handlers.end());
    }

    // Calls the handlers that are there now; they may add and remove meanwhile.
    template <typename Call>
    void ForEach(const Call& call) const
    {
        std::unique_lock lock(mutex);
        const std::vector<Handler*> present = handlers;
        lock.unlock();
        for (Handler* const handler : present)
            ExecutePolicy::Execute(*handler, call);
    }

private:
    std::vector<Handler*> handlers;
    mutable std::mutex mutex;
};

} // namespace Vorlan::Core
