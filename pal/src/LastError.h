#pragma once

#include <windows.h>

namespace Pal
{

// Sets the last error; the result is that of a function which failed.
BOOL Failed(DWORD error);

} // namespace Pal
