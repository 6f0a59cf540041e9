#include "codecs/BoundedProcess.h"

#include "base/Handle.h"

#include <QDir>

#include <windows.h>

#include <algorithm>
#include <array>
#include <system_error>
#include <vector>

namespace Vorlan::Platform
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr DWORD readInterval = 10;               // milliseconds
constexpr DWORD firstExceptionCode = 0xC0000000; // an exit code from here on is an NTSTATUS error

[[noreturn]] void ThrowLastError(const char* what)
{
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

void ThrowUnless(bool isDone, const char* what)
{
    if (!isDone)
        ThrowLastError(what);
}

struct Pipe
{
    UniqueObject readEnd;
    UniqueObject writeEnd;

    // Children may inherit the end to write to.
    Pipe()
    {
        SECURITY_ATTRIBUTES inheritable{sizeof(inheritable), nullptr, TRUE};
        ThrowUnless(CreatePipe(readEnd.Put(), writeEnd.Put(), &inheritable, 0), "CreatePipe");
        ThrowUnless(
            SetHandleInformation(readEnd.Get(), HANDLE_FLAG_INHERIT, 0), "SetHandleInformation");
    }
};

UniqueObject OpenNul()
{
    SECURITY_ATTRIBUTES inheritable{sizeof(inheritable), nullptr, TRUE};
    const HANDLE handle = CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
        FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable, OPEN_EXISTING, 0, nullptr);
    ThrowUnless(handle != INVALID_HANDLE_VALUE, "NUL");
    return UniqueObject(handle);
}

// A job whose processes end with it, and show no box when they crash.
UniqueObject MakeJob()
{
    UniqueObject job(CreateJobObjectW(nullptr, nullptr));
    ThrowUnless(bool(job), "CreateJobObject");
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    ThrowUnless(SetInformationJobObject(
                    job.Get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits)),
        "SetInformationJobObject");
    return job;
}

// Names the only handles that a child inherits: others of this process, such as the pipes of other
// children, would be kept open by it.
class InheritedHandles
{
public:
    explicit InheritedHandles(std::vector<HANDLE> inherited) : handles(std::move(inherited))
    {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        storage.resize(size);
        ThrowUnless(InitializeProcThreadAttributeList(Get(), 1, 0, &size), "attribute list");
        if (!UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles.data(),
                handles.size() * sizeof(HANDLE), nullptr, nullptr))
        {
            DeleteProcThreadAttributeList(Get());
            ThrowLastError("inherited handles");
        }
    }
    InheritedHandles(const InheritedHandles&) = delete;
    InheritedHandles& operator=(const InheritedHandles&) = delete;
    ~InheritedHandles() { DeleteProcThreadAttributeList(Get()); }

    LPPROC_THREAD_ATTRIBUTE_LIST Get()
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(storage.data());
    }

private:
    std::vector<HANDLE> handles;
    std::vector<unsigned char> storage;
};

std::wstring CommandLine(const QString& program, const QStringList& arguments)
{
    QString line = '"' + QDir::toNativeSeparators(program) + '"';
    for (const QString& argument : arguments)
        line += " \"" + argument + '"';
    return line.toStdWString();
}

// The program, in the job and running.
UniqueProcess StartInJob(
    const QString& program, const QStringList& arguments, HANDLE output, HANDLE job)
{
    const UniqueObject nul = OpenNul();
    InheritedHandles inherited({output, nul.Get()});
    STARTUPINFOEXW startup{};
    startup.StartupInfo.cb = sizeof(startup);
    startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    startup.StartupInfo.hStdInput = nul.Get();
    startup.StartupInfo.hStdOutput = output;
    startup.StartupInfo.hStdError = nul.Get();
    startup.lpAttributeList = inherited.Get();
    std::wstring line = CommandLine(program, arguments);
    PROCESS_INFORMATION information{};
    ThrowUnless(CreateProcessW(QDir::toNativeSeparators(program).toStdWString().c_str(),
                    line.data(), nullptr, nullptr, TRUE,
                    CREATE_NO_WINDOW | CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                    nullptr, &startup.StartupInfo, &information),
        "CreateProcess");
    UniqueProcess process(information.hProcess);
    const UniqueObject thread(information.hThread);
    if (!AssignProcessToJobObject(job, process.Get()))
    {
        const DWORD error = GetLastError();
        TerminateProcess(process.Get(), 1);
        SetLastError(error);
        ThrowLastError("AssignProcessToJobObject"); // Windows 7 cannot nest jobs
    }
    ResumeThread(thread.Get());
    return process;
}

DWORD WaitTime(Clock::time_point end)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<DWORD>(std::clamp<long long>(left, 0, static_cast<long long>(INFINITE) - 1));
}

// Takes what is in the pipe now; false at the limit of the output. Never waits: a process that
// cannot be killed keeps its end of the pipe open.
bool ReadAvailable(HANDLE pipe, std::size_t maxOutput, std::string& output)
{
    std::array<char, 4096> buffer{};
    DWORD available = 0;
    while (PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) && available > 0)
    {
        DWORD count = 0;
        const DWORD wanted = std::min(available, static_cast<DWORD>(buffer.size()));
        if (!ReadFile(pipe, buffer.data(), wanted, &count, nullptr))
            break;
        output.append(buffer.data(), std::min<std::size_t>(count, maxOutput - output.size()));
        if (output.size() == maxOutput)
            return false;
    }
    return true;
}

BoundedRun::End Watch(
    HANDLE process, HANDLE pipe, Clock::time_point end, std::size_t maxOutput, std::string& output)
{
    while (true)
    {
        const DWORD timeLeft = WaitTime(end);
        const bool hasEnded =
            WaitForSingleObject(process, std::min(timeLeft, readInterval)) == WAIT_OBJECT_0;
        if (!ReadAvailable(pipe, maxOutput, output))
            return BoundedRun::End::TooMuchOutput;
        if (hasEnded)
            return BoundedRun::End::Exited;
        if (timeLeft == 0)
            return BoundedRun::End::TimedOut;
    }
}

void RunInJob(const QString& program, const QStringList& arguments, std::chrono::milliseconds limit,
    std::chrono::milliseconds grace, std::size_t maxOutput, BoundedRun& run)
{
    const Clock::time_point end = Clock::now() + limit;
    Pipe pipe;
    const UniqueObject job = MakeJob();
    const UniqueProcess process = StartInJob(program, arguments, pipe.writeEnd.Get(), job.Get());
    pipe.writeEnd.Reset();
    run.end = Watch(process.Get(), pipe.readEnd.Get(), end, maxOutput, run.output);
    TerminateJobObject(job.Get(), 1);
    DWORD code = 0;
    run.isLeftBehind =
        WaitForSingleObject(process.Get(), WaitTime(Clock::now() + grace)) != WAIT_OBJECT_0;
    if (!run.isLeftBehind)
        GetExitCodeProcess(process.Get(), &code);
    run.exitCode = static_cast<int>(code);
    if (run.end == BoundedRun::End::Exited && code >= firstExceptionCode)
        run.end = BoundedRun::End::Crashed;
}

} // namespace

BoundedRun RunBounded(const QString& program, const QStringList& arguments,
    std::chrono::milliseconds limit, std::chrono::milliseconds grace, std::size_t maxOutput)
{
    BoundedRun run;
    try
    {
        RunInJob(program, arguments, limit, grace, maxOutput, run);
    }
    catch (const std::system_error& error)
    {
        run.error = error.what();
    }
    return run;
}

} // namespace Vorlan::Platform
