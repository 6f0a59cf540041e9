#include "network/CurlMulti.h"

#include "network/TransferSetup.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace Vorlan::Networking
{

namespace
{

constexpr int pollMilliseconds = 100;

void ThrowUnlessOk(CURLMcode code, const char* text)
{
    if (code != CURLM_OK)
        throw std::runtime_error(std::string(text) + curl_multi_strerror(code));
}

int Perform(CURLM* multi)
{
    int stillRunning = 0;
    ThrowUnlessOk(curl_multi_perform(multi, &stillRunning), "cURL multi perform failed: ");
    return stillRunning;
}

} // namespace

std::unique_ptr<CurlMulti> CurlMulti::Create()
{
    SetUpTransfers();
    CURLM* handle = curl_multi_init();
    if (!handle)
        throw std::runtime_error("Failed creating CURL multi object");
    return std::unique_ptr<CurlMulti>(new CurlMulti(handle));
}

CurlMulti::CurlMulti(CURLM* owned) : release(curl_multi_cleanup), handle(owned) {}

CurlMulti::~CurlMulti()
{
    for (const auto& transfer : transfers)
        curl_multi_remove_handle(handle, transfer->Handle());
    transfers.clear();
    release(handle);
}

void CurlMulti::Add(std::unique_ptr<CurlEasy> transfer)
{
    transfers.push_back(std::move(transfer));
    ThrowUnlessOk(curl_multi_add_handle(handle, transfers.back()->Handle()),
        "cURL multi add handle failed: ");
}

void RunUntilDone(CURLM* multi, const std::atomic<bool>& keepRunning)
{
    int stillRunning = Perform(multi);
    while (keepRunning && stillRunning != 0)
    {
        ThrowUnlessOk(curl_multi_poll(multi, nullptr, 0, pollMilliseconds, nullptr),
            "cURL multi poll failed: ");
        stillRunning = Perform(multi);
    }

    int messagesLeft = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi, &messagesLeft))
    {
        if (!keepRunning)
            return;
        if (message->msg == CURLMSG_DONE && message->data.result != CURLE_OK)
            throw CurlError("cURL download failed", message->data.result);
    }
}

} // namespace Vorlan::Networking
