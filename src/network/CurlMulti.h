#pragma once

#include "network/CurlEasy.h"

#include <curl/curl.h>

#include <atomic>
#include <functional>
#include <list>
#include <memory>

namespace Vorlan::Networking
{

// Several transfers at once: owns a libcurl multi handle and the transfers added to it, which never
// outlive it. Failures throw std::runtime_error with libcurl's text. One thread at a time.
class CurlMulti
{
public:
    static std::unique_ptr<CurlMulti> Create();
    ~CurlMulti();
    CurlMulti(const CurlMulti&) = delete;
    CurlMulti& operator=(const CurlMulti&) = delete;

    // Owns the transfer also when this throws.
    void Add(std::unique_ptr<CurlEasy> transfer);

    CURLM* Handle() const { return handle; }

private:
    explicit CurlMulti(CURLM* owned);

    std::function<void(CURLM*)> release;
    CURLM* handle;
    std::list<std::unique_ptr<CurlEasy>> transfers;
};

// Runs the transfers until all have ended, or until another thread clears the flag: then it returns
// like a finished run, after at most 100 ms. Throws CurlError when a transfer failed, and
// std::runtime_error when libcurl could not go on.
void RunUntilDone(CURLM* multi, const std::atomic<bool>& keepRunning);

} // namespace Vorlan::Networking
