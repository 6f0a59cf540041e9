#pragma once

#include <cstdint>
#include <limits>
#include <string>

namespace Vorlan::Core
{

// A version of up to four parts. A part that is not given holds all ones and counts as 0.
struct Version
{
    static constexpr std::uint32_t notGiven = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t major = notGiven;
    std::uint32_t minor = notGiven;
    std::uint32_t third = notGiven;
    std::uint32_t fourth = notGiven;
};

// Whether the first version is newer.
bool operator>(const Version& left, const Version& right);

namespace Util
{

// Reads "24.5.1" with the separator ".". Reading ends at the first part that is no decimal number
// below 2^32 - 1; that part and those behind it are not given, so text that is no version at all
// counts as 0. Parts behind the fourth are passed over. Throws nothing.
Version VersionFromString(const std::string& text, const std::string& separator);

} // namespace Util

} // namespace Vorlan::Core
