#include "network/CurlMulti.h"
#include "support/TestServers.h"

#include <gtest/gtest.h>

using namespace Vorlan;
using namespace Vorlan::Networking;

namespace
{

std::size_t Append(const char* data, std::size_t, std::size_t size, void* text)
{
    static_cast<std::string*>(text)->append(data, size);
    return size;
}

std::unique_ptr<CurlEasy> MakeTransfer(const QString& address, std::string& body)
{
    auto easy = CurlEasy::Create();
    easy->SetOption(CURLOPT_URL, qUtf8Printable(address));
    easy->SetOption(CURLOPT_PROXY, "");
    easy->SetOption(CURLOPT_WRITEFUNCTION, &Append);
    easy->SetOption(CURLOPT_WRITEDATA, static_cast<void*>(&body));
    return easy;
}

std::string ErrorOf(const std::function<void()>& operation)
{
    try
    {
        operation();
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
    return "no error";
}

const std::atomic<bool> yes{true};
const QString http = "http";

} // namespace

TEST(CurlEasyTest, TransfersAndTellsTheDeclaredLength)
{
    std::string body;
    const auto easy = MakeTransfer(TestServers::Address(http, "/text?text=hello"), body);
    easy->Perform();
    EXPECT_EQ(body, "hello");
    EXPECT_EQ(easy->ContentLength(), 5);

    const auto undeclared = MakeTransfer(TestServers::Address(http, "/undeclared"), body);
    undeclared->Perform();
    EXPECT_EQ(undeclared->ContentLength(), -1);
}

TEST(CurlEasyTest, FailuresCarryTheTextsOfLibcurl)
{
    std::string body;
    EXPECT_EQ(ErrorOf([&] { MakeTransfer("nonsense://x", body)->Perform(); }),
        "cURL perform failed: Unsupported protocol");
    EXPECT_EQ(ErrorOf([] { CurlEasy::Create()->SetOption(CURLOPT_MAXREDIRS, -2L); }),
        "cURL set option failed: A libcurl function was given a bad argument");
}

TEST(CurlEasyTest, HeadersAreTakenOverByExchange)
{
    std::string body;
    const auto easy = MakeTransfer(TestServers::Address(http, "/echo"), body);
    CurlHeaders headers;
    headers.Append("X-One: first");
    headers.Append("X-Two: second");
    easy->SetHeaders(headers);
    EXPECT_EQ(headers.Get(), nullptr);
    CurlHeaders others;
    others.Append("X-Three: third");
    easy->SetHeaders(others);
    ASSERT_NE(others.Get(), nullptr); // the first list, to be freed here
    EXPECT_STREQ(others.Get()->next->data, "X-Two: second");
    easy->Perform();
    EXPECT_NE(body.find("\"x-three\": \"third\""), std::string::npos) << body;
    EXPECT_EQ(body.find("x-one"), std::string::npos) << body;
}

TEST(CurlMultiTest, RunsAllItsTransfersAndNoneAtAll)
{
    const auto none = CurlMulti::Create();
    RunUntilDone(none->Handle(), yes);

    std::string first;
    std::string second;
    const auto multi = CurlMulti::Create();
    multi->Add(MakeTransfer(TestServers::Address(http, "/text?text=one"), first));
    multi->Add(MakeTransfer(TestServers::Address(http, "/text?text=two"), second));
    RunUntilDone(multi->Handle(), yes);
    EXPECT_EQ(first + ' ' + second, "one two");
}

TEST(CurlMultiTest, FailedTransferThrowsUnlessTheRunWasStopped)
{
    std::string body;
    const auto multi = CurlMulti::Create();
    multi->Add(MakeTransfer(TestServers::Address("closed"), body));
    EXPECT_EQ(ErrorOf([&] { RunUntilDone(multi->Handle(), yes); }),
        "cURL download failed: Couldn't connect to server");

    const auto stopped = CurlMulti::Create();
    stopped->Add(MakeTransfer("nonsense://x", body)); // fails in the first round
    const std::atomic<bool> no{false};
    RunUntilDone(stopped->Handle(), no);
}

TEST(CurlMultiTest, ClearedFlagEndsARunningTransfer)
{
    std::atomic<bool> keepRunning{true};
    const auto easyStops = [](char*, std::size_t, std::size_t size, void* flag) -> std::size_t
    {
        *static_cast<std::atomic<bool>*>(flag) = false;
        return size;
    };
    std::string body;
    auto easy = MakeTransfer(TestServers::Address(http, "/stall"), body);
    easy->SetOption(CURLOPT_WRITEFUNCTION, +easyStops);
    easy->SetOption(CURLOPT_WRITEDATA, static_cast<void*>(&keepRunning));
    const auto multi = CurlMulti::Create();
    multi->Add(std::move(easy));
    RunUntilDone(multi->Handle(), keepRunning);
    EXPECT_FALSE(keepRunning);
}

TEST(CurlMultiTest, RefusedTransferIsOwnedAllTheSame)
{
    std::string body;
    auto easy = MakeTransfer(TestServers::Address(http, "/text?text=x"), body);
    CurlEasy* const inUse = easy.get();
    const auto first = CurlMulti::Create();
    first->Add(std::move(easy));
    const auto second = CurlMulti::Create();
    EXPECT_EQ(curl_multi_add_handle(second->Handle(), inUse->Handle()), CURLM_ADDED_ALREADY);
    auto other = CurlEasy::Create();
    CURL* const handle = other->Handle();
    ASSERT_EQ(curl_multi_add_handle(first->Handle(), handle), CURLM_OK);
    EXPECT_EQ(ErrorOf([&] { second->Add(std::move(other)); }),
        "cURL multi add handle failed: The easy handle is already added to a multi handle");
    curl_multi_remove_handle(first->Handle(), handle);
}
