#include "process/Process.h"

#include "ErrorMapping.h"
#include "LastError.h"
#include "process/PidFd.h"

#include <QtDebug>

#include <cerrno>
#include <csignal>
#include <map>
#include <system_error>
#include <thread>

#include <poll.h>
#include <sys/wait.h>

namespace Pal
{

namespace
{

struct ChildList
{
    std::mutex mutex;
    std::map<pid_t, std::weak_ptr<Process>> children;
};

ChildList& Children()
{
    static ChildList& children =
        *new ChildList; // never destroyed: calls may come from static destructors
    return children;
}

// False if there is no such child, for example because other code collected it.
bool WaitForChild(int pidFd, siginfo_t& status)
{
    int result = 0;
    do
        result = waitid(static_cast<idtype_t>(P_PIDFD), static_cast<id_t>(pidFd), &status, WEXITED);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

void CollectLater(Descriptor descriptor, pid_t id)
{
    try
    {
        auto collect = [child = std::move(descriptor)]
        {
            siginfo_t status = {};
            WaitForChild(child.Get(), status);
        };
        std::thread(std::move(collect)).detach();
    }
    catch (const std::system_error& error)
    {
        qWarning("Process %d stays in the process table after its end: %s", id, error.what());
    }
}

DWORD OpenPidFd(pid_t id, Descriptor& descriptor)
{
    descriptor = Descriptor(pidfd_open(id, 0));
    return descriptor.IsOpen() ? ERROR_SUCCESS : ErrorFromErrno(errno);
}

} // namespace

Process::Process(pid_t number, Descriptor pidFd, Origin whose)
    : id(number), descriptor(std::move(pidFd)), origin(whose)
{
}

Process::~Process()
{
    if (origin == Origin::Foreign)
        return;
    const auto expired = [](const auto& child) { return child.second.expired(); };
    {
        const std::lock_guard lock(Children().mutex);
        auto& children = Children().children;
        const auto own = children.find(id);
        if (own != children.end() && expired(*own))
            children.erase(own);
    }
    if (HasEnded())
        Collect();
    else
        CollectLater(Descriptor(dup(descriptor.Get())), id);
}

bool Process::HasEnded() const
{
    pollfd wanted = {descriptor.Get(), POLLIN, 0};
    return poll(&wanted, 1, 0) == 1;
}

std::optional<DWORD> Process::ExitCode()
{
    const std::lock_guard lock(mutex);
    Collect();
    return exitCode;
}

void Process::Collect()
{
    if (collected || origin == Origin::Foreign)
        return;
    collected = true;
    siginfo_t status = {};
    if (!WaitForChild(descriptor.Get(), status))
        return;
    const auto code = static_cast<DWORD>(status.si_status);
    exitCode = status.si_code == CLD_EXITED ? code : terminationCode.value_or(128 + code);
}

DWORD Process::Terminate(DWORD code)
{
    const std::lock_guard lock(mutex);
    if (HasEnded())
        return ERROR_ACCESS_DENIED;
    terminationCode = code;
    if (pidfd_send_signal(descriptor.Get(), SIGKILL, nullptr, 0) == 0)
        return ERROR_SUCCESS;
    return errno == ESRCH ? ERROR_ACCESS_DENIED : ErrorFromErrno(errno);
}

DWORD FindProcess(pid_t id, std::shared_ptr<Process>& process)
{
    const std::lock_guard lock(Children().mutex);
    const auto child = Children().children.find(id);
    if (child != Children().children.end())
        process = child->second.lock();
    if (process)
        return ERROR_SUCCESS;
    Descriptor descriptor;
    const DWORD error = OpenPidFd(id, descriptor);
    if (error == ERROR_SUCCESS)
        process = std::make_shared<Process>(id, std::move(descriptor), Process::Origin::Foreign);
    return error;
}

DWORD AdoptChild(pid_t id, std::shared_ptr<Process>& process)
{
    const std::lock_guard lock(Children().mutex);
    Descriptor descriptor;
    const DWORD error = OpenPidFd(id, descriptor);
    if (error != ERROR_SUCCESS)
        return error;
    process = std::make_shared<Process>(id, std::move(descriptor), Process::Origin::Child);
    Children().children[id] = process;
    return ERROR_SUCCESS;
}

std::shared_ptr<ProcessHandle> FindProcessHandle(HANDLE handle, DWORD access)
{
    auto found = HandleTable::Instance().Find<ProcessHandle>(handle);
    if (!found)
        SetLastError(ERROR_INVALID_HANDLE);
    else if (!found->Allows(access))
        SetLastError(ERROR_ACCESS_DENIED);
    return found && found->Allows(access) ? found : nullptr;
}

} // namespace Pal
