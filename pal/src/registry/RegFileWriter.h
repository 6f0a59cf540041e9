// Spells keys and values as regedit does in its "Version 5.00" files.
#pragma once

#include "registry/KeyTree.h"

#include <string>

namespace Pal
{

extern const std::u16string_view regFileHeader; // with the byte-order mark and the empty line

// A whole file: keys sorted, the values of each in their order.
std::u16string WholeRegFile(const KeyNode& root);

} // namespace Pal
