// Calls on an existing process.
#include <windows.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "process/PidFd.h"
#include "process/Process.h"
#include "process/ProcessList.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <ctime>

#include <poll.h>

namespace Pal
{

namespace
{

DWORD CheckAccess(const Process& process, DWORD access)
{
    if ((access & PROCESS_TERMINATE) && pidfd_send_signal(process.PidFd(), 0, nullptr, 0) != 0 &&
        errno == EPERM)
        return ERROR_ACCESS_DENIED;
    const bool reads = access & (PROCESS_VM_READ | PROCESS_QUERY_INFORMATION);
    std::string executable;
    return reads && ReadExecutable(process.Id(), executable) == ERROR_ACCESS_DENIED
               ? ERROR_ACCESS_DENIED
               : ERROR_SUCCESS;
}

DWORD OpenWithAccess(DWORD id, DWORD access, HANDLE& handle)
{
    if (id == 0 || id > INT_MAX)
        return ERROR_INVALID_PARAMETER;
    std::shared_ptr<Process> process;
    DWORD error = FindProcess(static_cast<pid_t>(id), process);
    if (error == ERROR_SUCCESS)
        error = CheckAccess(*process, access);
    if (error == ERROR_SUCCESS)
        handle = HandleTable::Instance().Add(std::make_shared<ProcessHandle>(process, access));
    return error;
}

using Clock = std::chrono::steady_clock;

// One poll, until the end time at the latest; without a limit for a null pointer.
int PollUntil(int descriptor, const Clock::time_point* end)
{
    pollfd wanted = {descriptor, POLLIN, 0};
    if (!end)
        return poll(&wanted, 1, -1);
    const auto left = std::max(Clock::duration::zero(), *end - Clock::now());
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    const std::chrono::nanoseconds rest = left - seconds;
    const timespec limit = {seconds.count(), rest.count()};
    return ppoll(&wanted, 1, &limit, nullptr);
}

DWORD WaitForEnd(const Process& process, DWORD milliseconds)
{
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(milliseconds);
    int ready = 0;
    do
        ready = PollUntil(process.PidFd(), milliseconds == INFINITE ? nullptr : &end);
    while (ready < 0 && errno == EINTR);
    if (ready > 0)
        return WAIT_OBJECT_0;
    if (ready == 0)
        return WAIT_TIMEOUT;
    SetLastError(ErrorFromErrno(errno));
    return WAIT_FAILED;
}

} // namespace

} // namespace Pal

// Keeps:   ERROR_INVALID_PARAMETER for number 0 and for a number without a process;
//          ERROR_ACCESS_DENIED if this user may not terminate the process or read its executable
//          and asks for that right.
// Differs: a process that has ended can be opened until its parent has collected it.
// Refuses: rights other than terminating, reading, querying and waiting; inheriting.
HANDLE OpenProcess(DWORD desiredAccess, BOOL inheritHandle, DWORD processId)
{
    if (Pal::FaultHits(__func__))
        return nullptr;
    HANDLE handle = nullptr;
    DWORD error = ERROR_NOT_SUPPORTED;
    if (desiredAccess && !(desiredAccess & ~Pal::allProcessAccess) && !inheritHandle)
        error = Pal::OpenWithAccess(processId, desiredAccess, handle);
    if (error != ERROR_SUCCESS)
        SetLastError(error);
    return handle;
}

// Keeps:   ends the process without notifying it; ERROR_ACCESS_DENIED for one that has ended.
// Differs: the exit code is reported only in this process and only for a child; other processes see
//          an end by SIGKILL.
BOOL TerminateProcess(HANDLE process, UINT exitCode)
{
    if (Pal::FaultHits(__func__))
        return FALSE;
    const auto handle = Pal::FindProcessHandle(process, PROCESS_TERMINATE);
    if (!handle)
        return FALSE;
    const DWORD error = handle->Target().Terminate(exitCode);
    return error == ERROR_SUCCESS ? TRUE : Pal::Failed(error);
}

// Keeps:   STILL_ACTIVE while the process runs.
// Differs: codes have 8 bits. The end by a signal is 128 plus its number, unless TerminateProcess
//          sent it.
// Refuses: the code of a process that was not started by CreateProcessW or ShellExecuteExW in this
//          process, because the system tells it to the parent only: ERROR_NOT_SUPPORTED.
BOOL GetExitCodeProcess(HANDLE process, LPDWORD exitCode)
{
    if (Pal::FaultHits(__func__))
        return FALSE;
    const auto handle = Pal::FindProcessHandle(process, PROCESS_QUERY_INFORMATION);
    if (!handle)
        return FALSE;
    if (!exitCode)
        return Pal::Failed(ERROR_INVALID_PARAMETER);
    const std::optional<DWORD> code =
        handle->Target().HasEnded() ? handle->Target().ExitCode() : DWORD{STILL_ACTIVE};
    if (!code)
        return Pal::Failed(ERROR_NOT_SUPPORTED);
    *exitCode = *code;
    return TRUE;
}

// Keeps:   WAIT_OBJECT_0 when the process has ended, WAIT_TIMEOUT, no limit for INFINITE;
//          WAIT_FAILED with ERROR_ACCESS_DENIED without SYNCHRONIZE.
// Refuses: everything but a process: ERROR_INVALID_HANDLE.
DWORD WaitForSingleObject(HANDLE object, DWORD milliseconds)
{
    if (Pal::FaultHits(__func__))
        return WAIT_FAILED;
    const auto handle = Pal::FindProcessHandle(object, SYNCHRONIZE);
    return handle ? Pal::WaitForEnd(handle->Target(), milliseconds) : WAIT_FAILED;
}
