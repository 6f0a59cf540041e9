#include "platform/Version.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>

#include <algorithm>
#include <tuple>

namespace Vorlan::Core
{

namespace
{

auto Comparable(const Version& version)
{
    const auto given = [](std::uint32_t part) { return part == Version::notGiven ? 0 : part; };
    return std::make_tuple(
        given(version.major), given(version.minor), given(version.third), given(version.fourth));
}

bool ReadPart(const std::string& text, std::uint32_t& part)
{
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    return std::all_of(text.begin(), text.end(), isDigit) &&
           boost::conversion::try_lexical_convert(text, part);
}

} // namespace

bool operator>(const Version& left, const Version& right)
{
    return Comparable(left) > Comparable(right);
}

namespace Util
{

Version VersionFromString(const std::string& text, const std::string& separator)
{
    Version version;
    std::size_t begin = 0;
    for (std::uint32_t* part : {&version.major, &version.minor, &version.third, &version.fourth})
    {
        const std::size_t end = text.find(separator, begin);
        if (!ReadPart(text.substr(begin, end - begin), *part))
        {
            *part = Version::notGiven;
            break;
        }
        if (end == std::string::npos)
            break;
        begin = end + separator.size();
    }
    return version;
}

} // namespace Util

} // namespace Vorlan::Core
