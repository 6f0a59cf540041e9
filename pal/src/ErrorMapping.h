// Translates errors of the system to Windows error codes. No other file does.
#pragma once

#include <windows.h>

#include <string>

namespace Pal
{

// The Windows error for an errno value; ERROR_GEN_FAILURE for a value without a counterpart.
DWORD ErrorFromErrno(int systemError);

// The same for a call that named a file: as on Windows, ENOENT is ERROR_PATH_NOT_FOUND if a folder
// of the path is missing and ERROR_FILE_NOT_FOUND if only the last component is.
DWORD ErrorForPath(int systemError, const std::string& path);

} // namespace Pal
