#include "platform/InternetConnection.h"

#include <vector>

#include <winsock2.h>
#include <ws2tcpip.h>

#include <windows.h>

#include <iphlpapi.h>

namespace Vorlan::Platform
{

namespace
{

bool ReachesBeyondItsCable(const SOCKET_ADDRESS& address)
{
    if (address.lpSockaddr->sa_family == AF_INET)
        return true;
    const auto* const sixth = reinterpret_cast<const sockaddr_in6*>(address.lpSockaddr);
    return !IN6_IS_ADDR_LINKLOCAL(&sixth->sin6_addr);
}

bool IsConnected(const IP_ADAPTER_ADDRESSES& adapter)
{
    if (adapter.OperStatus != IfOperStatusUp || adapter.IfType == IF_TYPE_SOFTWARE_LOOPBACK)
        return false;
    for (const auto* one = adapter.FirstUnicastAddress; one; one = one->Next)
    {
        if (ReachesBeyondItsCable(one->Address))
            return true;
    }
    return false;
}

} // namespace

bool HasNetworkConnection()
{
    ULONG size = 16 * 1024;
    std::vector<char> buffer;
    ULONG result = ERROR_BUFFER_OVERFLOW;
    for (int attempt = 0; attempt < 3 && result == ERROR_BUFFER_OVERFLOW; ++attempt)
    {
        buffer.resize(size);
        result = GetAdaptersAddresses(AF_UNSPEC,
            GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER, nullptr,
            reinterpret_cast<IP_ADAPTER_ADDRESSES*>(buffer.data()), &size);
    }
    if (result != ERROR_SUCCESS)
        return result != ERROR_NO_DATA; // unknown: then the machine is not to blame
    for (const auto* adapter = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(buffer.data());
         adapter; adapter = adapter->Next)
    {
        if (IsConnected(*adapter))
            return true;
    }
    return false;
}

} // namespace Vorlan::Platform
