// File locks between processes. A lock is released when its descriptor is closed.
#pragma once

#include <Descriptor.h>

#include <windows.h>

#include <filesystem>

namespace Pal
{

// flags: O_CREAT to create a missing file.
Descriptor OpenLockFile(const std::filesystem::path& path, int flags);

// Waits for the lock. operation: LOCK_SH or LOCK_EX.
DWORD LockFile(const Descriptor& file, int operation);

// Takes an exclusive lock if no other descriptor holds a lock; taken tells whether it did.
DWORD TryLockFile(const Descriptor& file, bool& taken);

} // namespace Pal
