// A process of the system and the handles for it.
//
// A process is referred to by a pidfd, so a reused process number cannot be mistaken for it.
// Children that this layer started are collected here by number and without a signal handler, so
// QProcess and other code collect their own.
#pragma once

#include "HandleTable.h"
#include <Descriptor.h>

#include <memory>
#include <mutex>
#include <optional>

#include <sys/types.h>

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

    Process(pid_t number, Descriptor pidFd, Origin whose);
    // A child that is still running is collected by a thread when it ends.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t Id() const { return id; }
    int PidFd() const { return descriptor.Get(); }

    bool HasEnded() const;

    // Collects a child that has ended. Nothing for a process that another process or other code
    // collects.
    std::optional<DWORD> ExitCode();

    // code: the exit code that ExitCode reports for a child.
    DWORD Terminate(DWORD code);

private:
    void Collect();

    const pid_t id;
    const Descriptor descriptor;
    const Origin origin;
    std::mutex mutex;
    bool collected = false;
    std::optional<DWORD> exitCode;
    std::optional<DWORD> terminationCode;
};

// The process with that number. A child with open handles is always the same object.
DWORD FindProcess(pid_t id, std::shared_ptr<Process>& process);

// Adds a child that was just started. Fails if other code collects all children of this process.
DWORD AdoptChild(pid_t id, std::shared_ptr<Process>& process);

class ProcessHandle : public OpenObject
{
public:
    ProcessHandle(std::shared_ptr<Process> target, DWORD rights)
        : process(std::move(target)), access(rights)
    {
    }

    std::string Name() const override { return "process " + std::to_string(process->Id()); }
    bool Allows(DWORD rights) const { return (access & rights) == rights; }
    Process& Target() const { return *process; }

private:
    const std::shared_ptr<Process> process;
    const DWORD access;
};

// The first thread of a process that was started here. Its handle can only be closed.
class ThreadHandle : public OpenObject
{
public:
    explicit ThreadHandle(pid_t ownerId) : processId(ownerId) {}

    std::string Name() const override { return "thread of " + std::to_string(processId); }

private:
    const pid_t processId;
};

constexpr DWORD allProcessAccess =
    PROCESS_TERMINATE | PROCESS_VM_READ | PROCESS_QUERY_INFORMATION | SYNCHRONIZE;

// The process of a handle with these rights, which exists as long as the result. Null sets the last
// error: ERROR_INVALID_HANDLE or ERROR_ACCESS_DENIED.
std::shared_ptr<ProcessHandle> FindProcessHandle(HANDLE handle, DWORD access);

} // namespace Pal
