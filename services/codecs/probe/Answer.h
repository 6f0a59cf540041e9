#pragma once

#include <string>

namespace Probe
{

// What the probe says of one codec with one implementation, and why.
struct Answer
{
    enum class Kind
    {
        Usable,
        Unusable,  // it is there and does not work
        NotPresent // this machine or this implementation does not have it; nothing is broken
    };

    Kind kind;
    std::string reason; // printable ASCII, may be empty
};

inline Answer Usable()
{
    return {Answer::Kind::Usable, {}};
}

inline Answer Unusable(const std::string& call, long long code)
{
    return {Answer::Kind::Unusable, call + " failed with " + std::to_string(code)};
}

inline Answer NotPresent(const std::string& reason)
{
    return {Answer::Kind::NotPresent, reason};
}

} // namespace Probe
