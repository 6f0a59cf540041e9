#include "support/DiskFaults_linux.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

enum class Fault
{
    None,
    Kill,
    Full
};

struct Plan
{
    Fault fault = Fault::None;
    long change = 0;
};

Plan ReadPlan()
{
    const char* const text = std::getenv("VORLAN_TEST_FAULT");
    Plan plan;
    if (text && std::sscanf(text, "kill %ld", &plan.change) == 1)
        plan.fault = Fault::Kill;
    else if (text && std::sscanf(text, "full %ld", &plan.change) == 1)
        plan.fault = Fault::Full;
    return plan;
}

const Plan& ThePlan()
{
    static const Plan plan = ReadPlan();
    return plan;
}

std::atomic<long> changes = 0;

// Counts one change; whether it is the one that the plan names, or the disk is full since then.
struct Change
{
    Change() : number(++changes) {}

    bool IsChosen() const { return number == ThePlan().change; }
    bool IsKilled() const { return ThePlan().fault == Fault::Kill && IsChosen(); }
    bool IsRefused() const { return ThePlan().fault == Fault::Full && number >= ThePlan().change; }

    const long number;
};

template <typename Function>
Function* Real(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    std::abort(); // not reached
}

bool IsFile(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

bool IsOfTheSystem(const char* path)
{
    return std::strncmp(path, "/dev/", 5) == 0 || std::strncmp(path, "/proc/", 6) == 0;
}

// A change that happens as a whole or not at all. What frees room succeeds on a full disk, too.
template <typename Action>
auto DoWhole(bool needsRoom, const Action& action) -> decltype(action())
{
    const Change change;
    if (change.IsKilled())
        Die();
    if (needsRoom && change.IsRefused())
    {
        errno = ENOSPC;
        return -1;
    }
    return action();
}

// A write, of which half may have happened.
template <typename Action>
ssize_t DoPart(int descriptor, size_t size, const Action& write)
{
    if (!IsFile(descriptor))
        return write(size);
    const Change change;
    if (change.IsKilled())
    {
        write(size / 2);
        Die();
    }
    if (!change.IsRefused())
        return write(size);
    if (change.IsChosen() && size > 1)
        return write(size / 2);
    errno = ENOSPC;
    return -1;
}

bool MakesFile(const char* path, int flags)
{
    const bool isNew =
        (flags & O_TMPFILE) == O_TMPFILE || ((flags & O_CREAT) != 0 && access(path, F_OK) != 0);
    return isNew && !IsOfTheSystem(path);
}

bool TruncatesFile(const char* path, int flags)
{
    return (flags & O_TRUNC) != 0 && access(path, F_OK) == 0 && !IsOfTheSystem(path);
}

int Open(const char* path, int flags, mode_t mode)
{
    const auto open = [&] { return Real(&::open, "open")(path, flags, mode); };
    if (MakesFile(path, flags))
        return DoWhole(true, open);
    return TruncatesFile(path, flags) ? DoWhole(false, open) : open();
}

mode_t ModeOf(int flags, va_list arguments)
{
    const bool hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return hasMode ? va_arg(arguments, mode_t) : 0;
}

} // namespace

bool DiskFaults::IsFull()
{
    return ThePlan().fault == Fault::Full && changes >= ThePlan().change;
}

#pragma GCC visibility push(default) // seen by the libraries, too
extern "C"
{

    int open(const char* path, int flags, ...)
    {
        va_list arguments;
        va_start(arguments, flags);
        const mode_t mode = ModeOf(flags, arguments);
        va_end(arguments);
        return Open(path, flags, mode);
    }

    int open64(const char* path, int flags, ...) __attribute__((alias("open")));

    ssize_t write(int descriptor, const void* data, size_t size)
    {
        return DoPart(descriptor, size,
            [&](size_t part) { return Real(&::write, "write")(descriptor, data, part); });
    }

    ssize_t sendfile(int to, int from, off_t* offset, size_t size)
    {
        return DoPart(to, size,
            [&](size_t part) { return Real(&::sendfile, "sendfile")(to, from, offset, part); });
    }

    ssize_t copy_file_range(
        int from, off64_t* fromOffset, int to, off64_t* toOffset, size_t size, unsigned flags)
    {
        return DoPart(to, size,
            [&](size_t part)
            {
                return Real(&::copy_file_range, "copy_file_range")(
                    from, fromOffset, to, toOffset, part, flags);
            });
    }

    int ioctl(int descriptor, unsigned long request, ...)
    {
        va_list arguments;
        va_start(arguments, request);
        void* const argument = va_arg(arguments, void*);
        va_end(arguments);
        const auto call = [&] { return Real(&::ioctl, "ioctl")(descriptor, request, argument); };
        return request == FICLONE ? DoWhole(true, call) : call();
    }

    int mkdir(const char* path, mode_t mode)
    {
        return DoWhole(true, [&] { return Real(&::mkdir, "mkdir")(path, mode); });
    }

    int link(const char* from, const char* to)
    {
        return DoWhole(true, [&] { return Real(&::link, "link")(from, to); });
    }

    int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
    {
        return DoWhole(
            true, [&] { return Real(&::linkat, "linkat")(fromFolder, from, toFolder, to, flags); });
    }

    int rename(const char* from, const char* to)
    {
        return DoWhole(false, [&] { return Real(&::rename, "rename")(from, to); });
    }

    int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
    {
        return DoWhole(false,
            [&] { return Real(&::renameat2, "renameat2")(fromFolder, from, toFolder, to, flags); });
    }

    int unlink(const char* path)
    {
        return DoWhole(false, [&] { return Real(&::unlink, "unlink")(path); });
    }

    int rmdir(const char* path)
    {
        return DoWhole(false, [&] { return Real(&::rmdir, "rmdir")(path); });
    }

    int ftruncate(int descriptor, off_t size)
    {
        return DoWhole(false, [&] { return Real(&::ftruncate, "ftruncate")(descriptor, size); });
    }
}
#pragma GCC visibility pop
