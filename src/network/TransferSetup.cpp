#include "network/TransferSetup.h"

#include "platform/System.h"

#include <curl/curl.h>

#include <stdexcept>
#include <string>

namespace Vorlan::Networking
{

namespace
{

class TransferSetup
{
public:
    TransferSetup()
    {
        const CURLcode code = curl_global_init(CURL_GLOBAL_ALL);
        if (code != CURLE_OK)
            throw std::runtime_error(
                std::string("cURL global init failed: ") + curl_easy_strerror(code));
    }
    ~TransferSetup()
    {
        // A process that ends on Windows has ended its other threads wherever they were: their
        // locks stay taken, and the system releases what is left.
        if (!Platform::IsProcessEnding())
            curl_global_cleanup();
    }
    TransferSetup(const TransferSetup&) = delete;
    TransferSetup& operator=(const TransferSetup&) = delete;

    NativeProxyProvider proxies;
};

TransferSetup& Setup()
{
    static TransferSetup setup;
    return setup;
}

[[maybe_unused]] const bool isSetUpAtLoad = Platform::MaySetUpWhileLoading() && (Setup(), true);

} // namespace

void SetUpTransfers()
{
    Setup();
}

IProxyProvider& ProxyProvider()
{
    return Setup().proxies;
}

} // namespace Vorlan::Networking
