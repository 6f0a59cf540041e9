#pragma once

/// The values of a setting with three states: only `chosen` switches it on.
namespace Vorlan::TriState
{

inline constexpr int notAsked = 0; ///< nobody was asked
inline constexpr int declined = 1; ///< the answer was no
inline constexpr int chosen = 2;   ///< the answer was yes

/// The answer to a question that was asked.
constexpr int Of(bool isChosen)
{
    return isChosen ? chosen : declined;
}

} // namespace Vorlan::TriState
