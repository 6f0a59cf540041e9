#pragma once

#include "Faults.h"

#include <optional>

namespace Pal
{

// The result of a COM function or method that must fail, which also sets the last error. A fault
// is given as a Windows error or as an HRESULT.
inline std::optional<HRESULT> InjectedResult(const char* function)
{
    const std::optional<DWORD> error = InjectedFault(function);
    if (!error)
        return std::nullopt;
    SetLastError(*error);
    return HRESULT_FROM_WIN32(*error);
}

} // namespace Pal
