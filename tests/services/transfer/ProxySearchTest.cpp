#include "transfer/ProxySearch.h"

#include <gtest/gtest.h>

#include <future>

using namespace Vorlan::Networking;
using namespace std::chrono_literals;

TEST(ProxySearchTest, EndsWithItsAnswerItsLimitOrTheFlag)
{
    std::promise<void> answer;
    const auto stuck = [mayEnd = answer.get_future().share()]
    {
        mayEnd.wait();
        return std::string("late");
    };
    std::atomic<bool> keepRunning{true};
    EXPECT_EQ(RunProxySearch([] { return "http://p:1"; }, 1h, keepRunning).address, "http://p:1");
    const auto failing = []() -> std::string { throw std::runtime_error("no answer"); };
    EXPECT_TRUE(RunProxySearch(failing, 1h, keepRunning).hasEnded);
    EXPECT_FALSE(RunProxySearch(stuck, 10ms, keepRunning).hasEnded);
    keepRunning = false;
    EXPECT_FALSE(RunProxySearch(stuck, 1h, keepRunning).hasEnded); // or never comes back
    answer.set_value();
}
