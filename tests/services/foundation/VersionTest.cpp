#include "platform/Version.h"
#include "platform/Timer.h"

#include <gtest/gtest.h>

using namespace Vorlan::Core;

namespace
{

Version Parse(const std::string& text)
{
    return Util::VersionFromString(text, ".");
}

} // namespace

TEST(Version, ComparesPartByPartWithMissingOnesAsZero)
{
    EXPECT_TRUE(Parse("24.5.1") > Parse("24.5.0"));
    EXPECT_TRUE(Parse("24.10") > Parse("24.9.9"));
    EXPECT_TRUE(Parse("24.5.1.1") > Parse("24.5.1"));
    EXPECT_FALSE(Parse("24.5") > Parse("24.5.0.0"));
    EXPECT_FALSE(Parse("24.5.0.0") > Parse("24.5"));
    EXPECT_FALSE(Parse("24.5.1") > Parse("24.5.1"));
    EXPECT_TRUE(Parse("24.5.1") > Util::VersionFromString("24-4-0", "-"));
}

TEST(Version, ReadingEndsAtTheFirstPartThatIsNoNumber)
{
    const Version version = Parse("24.5.beta.7");
    EXPECT_EQ(version.major, 24u);
    EXPECT_EQ(version.minor, 5u);
    EXPECT_EQ(version.third, Version::notGiven);
    EXPECT_EQ(version.fourth, Version::notGiven);
    EXPECT_EQ(Parse("1.2.3.4.5").fourth, 4u);

    for (const char* text : {"", "abc", "-1", " 1", "+1", "99999999999", "."})
        EXPECT_EQ(Parse(text).major, Version::notGiven) << text;
}

TEST(Timer, SecondsAreRoundedToOneDecimal)
{
    EXPECT_FLOAT_EQ(ToTenthsOfSeconds(0), 0.0F);
    EXPECT_FLOAT_EQ(ToTenthsOfSeconds(49999), 0.0F);
    EXPECT_FLOAT_EQ(ToTenthsOfSeconds(1249999), 1.2F);
    EXPECT_FLOAT_EQ(ToTenthsOfSeconds(1250000), 1.3F);
}

TEST(Timer, AddsWhatPassedToItsCounter)
{
    long long counter = -1000000000000;
    {
        const TimerSimple timer(counter);
        EXPECT_GE(timer.Elapsed(), 0);
    }
    EXPECT_GE(counter, -1000000000000);
    EXPECT_LT(counter, 0);
}
