// Callers know the length as libcurl's older question answers it, which is marked as deprecated.
#define CURL_DISABLE_DEPRECATION

#include "network/CurlEasy.h"

#include "network/TransferSetup.h"

#include <cmath>
#include <utility>

namespace Vorlan::Networking
{

namespace
{

void ThrowUnlessOk(CURLcode code, const std::string& text)
{
    if (code != CURLE_OK)
        throw CurlError(text, code);
}

} // namespace

std::unique_ptr<CurlEasy> CurlEasy::Create()
{
    SetUpTransfers();
    CURL* handle = curl_easy_init();
    if (!handle)
        throw std::runtime_error("Failed creating CURL easy object");
    return std::unique_ptr<CurlEasy>(new CurlEasy(handle));
}

CurlEasy::CurlEasy(CURL* owned) : release(curl_easy_cleanup), handle(owned) {}

CurlEasy::~CurlEasy()
{
    headers = CurlHeaders();
    release(handle);
}

void CurlEasy::ThrowUnlessSet(CURLcode code)
{
    ThrowUnlessOk(code, "cURL set option failed");
}

void CurlEasy::SetHeaders(CurlHeaders& newHeaders)
{
    std::swap(headers, newHeaders);
    SetOption(CURLOPT_HTTPHEADER, headers.Get());
}

void CurlEasy::Perform()
{
    ThrowUnlessOk(curl_easy_perform(handle), "cURL perform failed");
}

long long CurlEasy::ContentLength() const
{
    double length = 0.0;
    ThrowUnlessOk(curl_easy_getinfo(handle, CURLINFO_CONTENT_LENGTH_DOWNLOAD, &length),
        "cURL getinfo failed");
    return std::llround(length);
}

} // namespace Vorlan::Networking
