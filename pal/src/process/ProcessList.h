// What the system says about processes.
#pragma once

#include <string>

#include <sys/types.h>

#include <windows.h>

namespace Pal
{

// The path of the file that a process runs, also after the file has gone.
DWORD ReadExecutable(pid_t id, std::string& path);

} // namespace Pal
