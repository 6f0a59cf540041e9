// Injected faults, for the functions of this layer.
#pragma once

#include <windows.h>

#include <optional>

namespace Pal
{

// Counts one call of the function. Returns the error that this call must report, if it must fail.
std::optional<DWORD> InjectedFault(const char* function);

// The same for a function that reports through the last error, which it sets.
bool FaultHits(const char* function);

} // namespace Pal
