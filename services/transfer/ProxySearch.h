#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>

namespace Vorlan::Networking
{

struct ProxySearch
{
    bool hasEnded = false; // false: cut off by the limit or the flag
    std::string address{}; // as IProxyProvider gives it
};

// Asks the process's proxy provider for an address, on a thread of its own: a system that searches
// the network for a configuration script may take minutes. A search that is cut off is left to end
// by itself, and the library stays loaded for it. Another thread may clear the flag.
ProxySearch FindProxy(
    const std::string& url, std::chrono::milliseconds limit, const std::atomic<bool>& keepRunning);

// The same with another search, which may throw: that counts as none found.
ProxySearch RunProxySearch(std::function<std::string()> search, std::chrono::milliseconds limit,
    const std::atomic<bool>& keepRunning);

} // namespace Vorlan::Networking
