// The one place where errors of the system become errors of Windows.
#pragma once

#include <string>

#include <windows.h>

namespace Pal
{

// The Windows error for an errno value. What has no counterpart becomes ERROR_GEN_FAILURE.
DWORD ErrorFromErrno(int systemError);

// The same for a call that named a file: as on Windows, a missing folder on the way is
// ERROR_PATH_NOT_FOUND and only a missing last component ERROR_FILE_NOT_FOUND.
DWORD ErrorForPath(int systemError, const std::string& path);

} // namespace Pal
