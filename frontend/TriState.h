#pragma once

// The values of a setting with three states: only `chosen` enables it.
namespace Vorlan::FrontEnd::TriState
{

constexpr int notAsked = 0;
constexpr int declined = 1;
constexpr int chosen = 2;

constexpr int Of(bool isChosen)
{
    return isChosen ? chosen : declined;
}

} // namespace Vorlan::FrontEnd::TriState
