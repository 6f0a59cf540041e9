#include "FileLock.h"

#include "ErrorMapping.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

namespace Pal
{

Descriptor OpenLockFile(const std::filesystem::path& path, int flags)
{
    return Descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | flags, 0666));
}

DWORD LockFile(const Descriptor& file, int operation)
{
    int result = 0;
    do
        result = flock(file.Get(), operation);
    while (result != 0 && errno == EINTR);
    return result == 0 ? ERROR_SUCCESS : ErrorFromErrno(errno);
}

DWORD TryLockFile(const Descriptor& file, bool& taken)
{
    taken = flock(file.Get(), LOCK_EX | LOCK_NB) == 0;
    return taken || errno == EWOULDBLOCK ? ERROR_SUCCESS : ErrorFromErrno(errno);
}

} // namespace Pal
