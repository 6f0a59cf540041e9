#pragma once

#include <curl/curl.h>

#include <memory>
#include <string>

namespace Vorlan::Networking
{

// Header lines for a request. Whoever holds the list last frees it.
class CurlHeaders
{
public:
    // Throws std::bad_alloc when there is no memory for the line.
    void Append(const std::string& line);

    curl_slist* Get() const { return list.get(); }

private:
    struct Free
    {
        void operator()(curl_slist* owned) const { curl_slist_free_all(owned); }
    };

    std::unique_ptr<curl_slist, Free> list;
};

} // namespace Vorlan::Networking
