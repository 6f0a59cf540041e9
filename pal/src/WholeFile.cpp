#include "WholeFile.h"

#include "ErrorMapping.h"
#include <Descriptor.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

// Prefix of the temporary files for a path; the number of the writing process follows.
std::string TemporaryPrefix(const std::string& path)
{
    return path + ".tmp-";
}

// A different name in the same folder for every call of every process.
std::string TemporaryName(const std::string& path)
{
    static std::atomic<unsigned> number = 0;
    return TemporaryPrefix(path) + std::to_string(getpid()) + "-" + std::to_string(++number);
}

// Deletes temporary files of processes that no longer exist.
void RemoveLeftovers(const std::string& path)
{
    const std::string prefix = TemporaryPrefix(path);
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path(), ignored))
    {
        const std::string& name = entry.path().native();
        const int owner = name.rfind(prefix, 0) == 0 ? std::atoi(name.c_str() + prefix.size()) : 0;
        if (owner > 0 && kill(owner, 0) != 0 && errno == ESRCH)
            unlink(name.c_str());
    }
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

// Exchanges the names where the file system can: when a rename replaces a file, ext4 first writes
// the new data to the disk.
DWORD Rename(const std::string& temporary, const std::string& path)
{
    struct stat status = {};
    const bool replaces = lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    if (replaces &&
        renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, path.c_str(), RENAME_EXCHANGE) == 0)
        return ERROR_SUCCESS;
    return rename(temporary.c_str(), path.c_str()) == 0 ? ERROR_SUCCESS : ErrorForPath(errno, path);
}

} // namespace

DWORD WriteWholeFile(const std::string& path, const std::string& bytes)
{
    RemoveLeftovers(path);
    const std::string temporary = TemporaryName(path);
    DWORD error = WriteNewFile(temporary, bytes);
    if (error == ERROR_SUCCESS)
        error = Rename(temporary, path);
    unlink(temporary.c_str());
    return error;
}

DWORD ReadOpenFile(int descriptor, std::string& bytes)
{
    bytes.clear();
    char buffer[16384];
    for (;;)
    {
        const ssize_t got = read(descriptor, buffer, sizeof(buffer));
        if (got == 0)
            return ERROR_SUCCESS;
        if (got < 0 && errno != EINTR)
            return ErrorFromErrno(errno);
        bytes.append(buffer, got < 0 ? 0 : static_cast<size_t>(got));
    }
}

DWORD ReadWholeFile(const std::string& path, std::string& bytes)
{
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return file.IsOpen() ? ReadOpenFile(file.Get(), bytes) : ErrorForPath(errno, path);
}

} // namespace Pal
