// Reads the system's list of processes.
#pragma once

#include <windows.h>

#include <string>

#include <sys/types.h>

namespace Pal
{

// The path of a process's executable, even if the file was deleted.
DWORD ReadExecutable(pid_t id, std::string& path);

} // namespace Pal
