#pragma once

#include <windows.h>

namespace Pal
{

// Sets the last error and returns FALSE.
BOOL Failed(DWORD error);

} // namespace Pal
