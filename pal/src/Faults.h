// Injected faults, as the functions of this layer see them.
#pragma once

#include <optional>

#include <windows.h>

namespace Pal
{

// Counts one call of the function; the error that this call must return, if it must fail.
std::optional<DWORD> InjectedFault(const char* function);

// The same for a function that reports through the last error, which is set when the call must
// fail.
bool FaultHits(const char* function);

} // namespace Pal
