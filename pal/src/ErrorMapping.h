// Translates errors of the system to Windows error codes. No other file does.
#pragma once

#include <Pal.h>
#include <windows.h>

#include <string>

namespace Pal
{

// ErrorFromErrno for a call that named a file: as on Windows, ENOENT is ERROR_PATH_NOT_FOUND if a
// folder of the path is missing and ERROR_FILE_NOT_FOUND if only the last component is.
DWORD ErrorForPath(int systemError, const std::string& path);

} // namespace Pal
