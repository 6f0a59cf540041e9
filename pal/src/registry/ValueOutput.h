// Copies values and names into a caller's buffers.
#pragma once

#include "registry/KeyTree.h"

namespace Pal
{

// Fills the caller's variables by the rules of RegQueryValueExW. data requires dataSize.
LSTATUS GiveValue(const RegistryValue& value, LPDWORD type, LPBYTE data, LPDWORD dataSize);

// Copies the name with its closing zero. length counts characters, on input with the zero and on
// output without it. ERROR_MORE_DATA, and no change, if it does not fit.
LSTATUS GiveName(std::u16string_view name, LPWSTR buffer, LPDWORD length);

} // namespace Pal
