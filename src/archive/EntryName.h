#pragma once

#include <string>
#include <vector>

namespace Vorlan
{

// Whether every name of an archive may become a file below the destination: components that Windows
// allows as file names, joined by "/"; nothing absolute, no way out of the destination, no two
// names that differ only in case. Empty names stand for folders and are passed over. The decoder
// checks none of this, and both the extractor and the copying step build paths of the names.
bool AreEntryNamesSafe(const std::vector<std::wstring>& names);

// The name under which an entry is selected: every code unit in lower case.
std::wstring EntryKey(const std::wstring& name);

} // namespace Vorlan
