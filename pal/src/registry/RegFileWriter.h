// Spells keys and values as regedit does in its "Version 5.00" files.
//
// A record is one section closed by an empty line. Records are applied in the order in which they
// stand, so a file of them is a journal and at every moment a file that regedit can import.
#pragma once

#include "registry/KeyTree.h"

#include <string>

namespace Pal
{

extern const std::u16string_view regFileHeader; // with the byte-order mark and the empty line

std::u16string KeyRecord(const std::u16string& rootName, const KeyPath& path);
std::u16string RemovedKeyRecord(const std::u16string& rootName, const KeyPath& path);
std::u16string ValueRecord(
    const std::u16string& rootName, const KeyPath& path, const RegistryValue& value);
std::u16string RemovedValueRecord(
    const std::u16string& rootName, const KeyPath& path, const std::u16string& valueName);

// A whole file: every key sorted, every value once, in its order.
std::u16string WholeRegFile(const KeyNode& root);

} // namespace Pal
