#include "WholeFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "Descriptor.h"
#include "ErrorMapping.h"

namespace Pal
{

namespace
{

// A name of its own in the same folder, for each call of each process.
std::string TemporaryName(const std::string& path)
{
    static std::atomic<unsigned> number = 0;
    return path + ".tmp-" + std::to_string(getpid()) + "-" + std::to_string(++number);
}

DWORD WriteAll(int descriptor, const std::string& bytes)
{
    size_t done = 0;
    while (done < bytes.size())
    {
        const ssize_t written = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR)
            return ErrorFromErrno(errno);
        done += written < 0 ? 0 : static_cast<size_t>(written);
    }
    return ERROR_SUCCESS;
}

DWORD WriteNewFile(const std::string& path, const std::string& bytes)
{
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    return file.IsOpen() ? WriteAll(file.Get(), bytes) : ErrorForPath(errno, path);
}

} // namespace

DWORD WriteWholeFile(const std::string& path, const std::string& bytes)
{
    const std::string temporary = TemporaryName(path);
    DWORD error = WriteNewFile(temporary, bytes);
    if (error == ERROR_SUCCESS && rename(temporary.c_str(), path.c_str()) != 0)
        error = ErrorForPath(errno, path);
    if (error != ERROR_SUCCESS)
        unlink(temporary.c_str());
    return error;
}

DWORD ReadWholeFile(const std::string& path, std::string& bytes)
{
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen())
        return ErrorForPath(errno, path);
    bytes.clear();
    char buffer[4096];
    for (;;)
    {
        const ssize_t got = read(file.Get(), buffer, sizeof(buffer));
        if (got == 0)
            return ERROR_SUCCESS;
        if (got < 0 && errno != EINTR)
            return ErrorFromErrno(errno);
        bytes.append(buffer, got < 0 ? 0 : static_cast<size_t>(got));
    }
}

} // namespace Pal
