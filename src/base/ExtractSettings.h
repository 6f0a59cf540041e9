#pragma once

#include <map>
#include <set>
#include <string>

// Which entries of the payload archive are written, and under which names. All keys are lower-case
// entry names with "/" between their components, one UTF-16 code unit to each wchar_t.
struct ExtractSettings
{
    std::set<std::wstring> include;              // when not empty, only these are written
    std::set<std::wstring> exclude;              // these are not written
    std::map<std::wstring, std::wstring> rename; // output name where it differs
};
