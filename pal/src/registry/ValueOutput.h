// How values and names are handed to a caller's buffers.
#pragma once

#include "KeyTree.h"

namespace Pal
{

// Fills what the caller asked for by the rules of RegQueryValueExW. data needs dataSize.
LSTATUS GiveValue(const RegistryValue& value, LPDWORD type, LPBYTE data, LPDWORD dataSize);

// Copies the name with its closing zero; length counts characters, with the zero on the way in and
// without it on the way out. ERROR_MORE_DATA, and nothing changed, when it does not fit.
LSTATUS GiveName(std::u16string_view name, LPWSTR buffer, LPDWORD length);

} // namespace Pal
