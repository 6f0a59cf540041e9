#pragma once

#include <windows.h>

namespace Vorlan::Platform
{

// Why the file call before failed: the error of the system's own call, as a Windows error number.
DWORD FileError();

} // namespace Vorlan::Platform
