#pragma once

#include <string>

namespace Vorlan::Networking
{

class IProxyProvider
{
public:
    struct Proxy
    {
        std::string address; // as libcurl takes it, such as "http://proxy:3128"; empty: none
    };

    virtual ~IProxyProvider() = default;

    // The proxy that the operating system uses for a URL.
    virtual Proxy getProxy(const std::string& url) = 0;
};

// Asks the operating system: WinHTTP on Windows; on Linux the environment variables https_proxy,
// http_proxy and all_proxy, and no_proxy for the hosts that are reached without one ("*", or names
// whose sub-domains count as well, separated by commas).
class NativeProxyProvider : public IProxyProvider
{
public:
    Proxy getProxy(const std::string& url) override;
};

} // namespace Vorlan::Networking
