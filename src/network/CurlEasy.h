#pragma once

#include "network/CurlHeaders.h"

#include <curl/curl.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace Vorlan::Networking
{

// A transfer that failed: a fixed text with libcurl's own behind it, and libcurl's code.
class CurlError : public std::runtime_error
{
public:
    CurlError(const std::string& text, CURLcode failure)
        : std::runtime_error(text + ": " + curl_easy_strerror(failure)), code(failure)
    {
    }
    CURLcode Code() const { return code; }

private:
    CURLcode code;
};

// One transfer: owns a libcurl easy handle and the header list attached to it. A handle
// that libcurl does not give throws std::runtime_error, every other failure CurlError. One thread
// at a time.
class CurlEasy
{
public:
    static std::unique_ptr<CurlEasy> Create();
    ~CurlEasy();
    CurlEasy(const CurlEasy&) = delete;
    CurlEasy& operator=(const CurlEasy&) = delete;

    // libcurl takes numbers as long or curl_off_t, never as int; texts are copied, all else must
    // outlive the transfer.
    template <typename Value>
    void SetOption(CURLoption option, Value value)
    {
        static_assert(!std::is_same_v<Value, int> && !std::is_same_v<Value, bool>);
        ThrowUnlessSet(curl_easy_setopt(handle, option, value));
    }

    // Swaps the list with the one in use.
    void SetHeaders(CurlHeaders& newHeaders);

    // Blocks until the transfer ends.
    void Perform();

    // The length that the server announced in bytes; -1 when it announced none.
    long long ContentLength() const;

    CURL* Handle() const { return handle; }

private:
    explicit CurlEasy(CURL* owned);
    static void ThrowUnlessSet(CURLcode code);

    std::function<void(CURL*)> release;
    CURL* handle;
    CurlHeaders headers;
};

} // namespace Vorlan::Networking
