// Locks between processes, each on a file. A lock goes with its descriptor.
#pragma once

#include <filesystem>

#include <windows.h>

#include "Descriptor.h"

namespace Pal
{

// flags: O_CREAT where a missing file shall be made.
Descriptor OpenLockFile(const std::filesystem::path& path, int flags);

// Waits for the lock. operation: LOCK_SH or LOCK_EX.
DWORD LockFile(const Descriptor& file, int operation);

// Takes the lock for itself if nobody has it; taken says whether that was so.
DWORD TryLockFile(const Descriptor& file, bool& taken);

} // namespace Pal
