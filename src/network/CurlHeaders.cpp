#include "network/CurlHeaders.h"

#include <new>

namespace Vorlan::Networking
{

void CurlHeaders::Append(const std::string& line)
{
    curl_slist* longer = curl_slist_append(list.get(), line.c_str());
    if (!longer)
        throw std::bad_alloc();
    static_cast<void>(list.release()); // the longer list begins with the old one, or is the first
    list.reset(longer);
}

} // namespace Vorlan::Networking
