#include "transfer/ProxySearch.h"

#include "network/TransferSetup.h"
#include "platform/System.h"

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace Vorlan::Networking
{

namespace
{

constexpr std::chrono::milliseconds cancelInterval{50};

// What the search and its waiter share; the last of them deletes it.
struct Shared
{
    std::mutex mutex;
    std::condition_variable ended;
    ProxySearch result;
};

void Search(const std::function<std::string()>& search, const std::shared_ptr<Shared>& shared)
{
    std::string address;
    try
    {
        address = search();
    }
    catch (const std::exception&)
    {
        address.clear();
    }
    const std::lock_guard lock(shared->mutex);
    shared->result = {true, address};
    shared->ended.notify_all();
}

} // namespace

ProxySearch RunProxySearch(std::function<std::string()> search, std::chrono::milliseconds limit,
    const std::atomic<bool>& keepRunning)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    const auto shared = std::make_shared<Shared>();
    std::thread thread(Search, std::move(search), shared);
    ProxySearch result;
    {
        std::unique_lock lock(shared->mutex);
        while (!shared->result.hasEnded && keepRunning && std::chrono::steady_clock::now() < end)
            shared->ended.wait_for(lock, cancelInterval);
        result = shared->result;
    }
    if (result.hasEnded)
    {
        thread.join();
        return result;
    }
    Platform::KeepLibraryLoaded();
    thread.detach();
    return result;
}

ProxySearch FindProxy(
    const std::string& url, std::chrono::milliseconds limit, const std::atomic<bool>& keepRunning)
{
    IProxyProvider& provider = ProxyProvider();
    return RunProxySearch(
        [&provider, url] { return provider.getProxy(url).address; }, limit, keepRunning);
}

} // namespace Vorlan::Networking
