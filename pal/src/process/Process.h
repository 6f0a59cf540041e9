// A process of the system and the handles for it.
//
// A process stands on a pidfd, so its number cannot come to mean another one. What this process
// started is collected here, by its number alone and without a signal handler, so QProcess and
// others go on collecting what they started.
#pragma once

#include <memory>
#include <mutex>
#include <optional>

#include <sys/types.h>

#include "../Descriptor.h"
#include "../HandleTable.h"

namespace Pal
{

class Process
{
public:
    enum class Origin
    {
        Child,
        Foreign
    };

    Process(pid_t id, Descriptor descriptor, Origin origin);
    // A child that still runs is collected by a thread as soon as it ends.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t Id() const { return m_id; }
    int PidFd() const { return m_descriptor.Get(); }

    bool HasEnded() const;

    // Collects a child that has ended. Nothing for a process that somebody else collects.
    std::optional<DWORD> ExitCode();

    // exitCode: what a child's exit code will be.
    DWORD Terminate(DWORD exitCode);

private:
    void Collect();

    const pid_t m_id;
    const Descriptor m_descriptor;
    const Origin m_origin;
    std::mutex m_mutex;
    bool m_collected = false;
    std::optional<DWORD> m_exitCode;
    std::optional<DWORD> m_terminationCode;
};

// The process of that number: a child with handles of its own is always the same object.
DWORD FindProcess(pid_t id, std::shared_ptr<Process>& process);

// Takes note of a process that was just started here. Fails when somebody else collects the
// children of this process.
DWORD AdoptChild(pid_t id, std::shared_ptr<Process>& process);

class ProcessHandle : public OpenObject
{
public:
    ProcessHandle(std::shared_ptr<Process> process, DWORD access)
        : m_process(std::move(process)), m_access(access)
    {
    }

    std::string Name() const override { return "process " + std::to_string(m_process->Id()); }
    bool Allows(DWORD access) const { return (m_access & access) == access; }
    Process& Target() const { return *m_process; }

private:
    const std::shared_ptr<Process> m_process;
    const DWORD m_access;
};

// The first thread of a process that was started here. It can only be closed.
class ThreadHandle : public OpenObject
{
public:
    explicit ThreadHandle(pid_t processId) : m_processId(processId) {}

    std::string Name() const override { return "thread of " + std::to_string(m_processId); }

private:
    const pid_t m_processId;
};

constexpr DWORD allProcessAccess =
    PROCESS_TERMINATE | PROCESS_VM_READ | PROCESS_QUERY_INFORMATION | SYNCHRONIZE;

// The process behind a handle with that access, which stays as long as the result. Null sets the
// last error: ERROR_INVALID_HANDLE or ERROR_ACCESS_DENIED.
std::shared_ptr<ProcessHandle> FindProcessHandle(HANDLE handle, DWORD access);

} // namespace Pal
