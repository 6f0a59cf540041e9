#include "ProgressEstimate.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Vorlan::FrontEnd;

namespace
{

// A run of 100 bytes whose speed is a function of the time; `look` sees the estimate ten times a
// second.
template <typename Speed, typename Look>
void Simulate(Speed speed, Look look)
{
    ProgressEstimate estimate;
    double done = 0;
    for (int tenth = 0; tenth <= 600 && done < 100; ++tenth)
    {
        const double seconds = 50 + tenth / 10.0;
        estimate.Add(seconds, done / 100, std::lround(done));
        look(tenth / 10.0, done, estimate);
        done += speed(tenth / 10.0) / 10;
    }
}

TEST(ProgressEstimateTest, ASteadySpeedGivesTheTimeLeftAfterThreeSeconds)
{
    Simulate([](double) { return 5.0; }, // 20 s
        [](double seconds, double, const ProgressEstimate& estimate)
        {
            EXPECT_EQ(estimate.Speed().has_value(), seconds >= 1);
            EXPECT_EQ(estimate.TimeLeft().has_value(), seconds >= 3) << seconds;
            if (seconds < 3)
                return;
            EXPECT_NEAR(*estimate.TimeLeft(), 20 - seconds, 1.3);
            EXPECT_NEAR(*estimate.Speed(), 5, 0.6);
        });
}

TEST(ProgressEstimateTest, NothingIsShownUntilTheSpeedIsSteady)
{
    double first = 0;
    Simulate([](double seconds)
        { return seconds < 1.5 ? 20.0 : 1.0; }, // far slower after a fast start
        [&](double seconds, double, const ProgressEstimate& estimate)
        { first = first == 0 && estimate.TimeLeft() ? seconds : first; });
    EXPECT_GT(first, 5);
}

TEST(ProgressEstimateTest, TheTimeLeftNeverJumpsByMoreThanAThird)
{
    double last = 0;
    int changes = 0;
    Simulate([](double seconds) { return 2 + 1.9 * std::sin(seconds); },
        [&](double seconds, double, const ProgressEstimate& estimate)
        {
            const double left = estimate.TimeLeft().value_or(0);
            if (last != 0 && left != last)
            {
                ++changes;
                EXPECT_LE(std::abs(left - last), last / 3 + 1e-9) << seconds;
            }
            last = left;
        });
    EXPECT_GT(changes, 5);
}

TEST(ProgressEstimateTest, NoTimeIsLeftToShowWhileNothingAdvances)
{
    std::optional<double> atTheEnd = 1;
    Simulate([](double seconds) { return seconds < 10 ? 5.0 : 0.0; },
        [&](double, double, const ProgressEstimate& estimate) { atTheEnd = estimate.TimeLeft(); });
    EXPECT_FALSE(atTheEnd);
}

} // namespace
