#include "platform/InternetConnection.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

namespace Vorlan::Platform
{

namespace
{

bool ReachesBeyondItsCable(const sockaddr* address)
{
    if (!address)
        return false;
    if (address->sa_family == AF_INET)
        return true;
    return address->sa_family == AF_INET6 &&
           !IN6_IS_ADDR_LINKLOCAL(&reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr);
}

} // namespace

bool HasNetworkConnection()
{
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0)
        return true; // unknown: then the machine is not to blame
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> interfaces(first, freeifaddrs);
    for (const ifaddrs* one = first; one; one = one->ifa_next)
    {
        const bool isUp = (one->ifa_flags & IFF_UP) != 0 && (one->ifa_flags & IFF_RUNNING) != 0;
        if (isUp && (one->ifa_flags & IFF_LOOPBACK) == 0 && ReachesBeyondItsCable(one->ifa_addr))
            return true;
    }
    return false;
}

} // namespace Vorlan::Platform
