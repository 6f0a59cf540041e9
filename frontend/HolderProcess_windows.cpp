#include "HolderProcess.h"

#include "base/Handle.h"

#include <map>

#include <windows.h>

#include <tlhelp32.h>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr UINT exitCode = 1;

struct SnapshotTraits
{
    using Type = HANDLE;
    static bool IsValid(HANDLE handle)
    {
        return handle != nullptr && handle != INVALID_HANDLE_VALUE;
    }
    static void Close(HANDLE handle) { CloseHandle(handle); }
};

// The parent of every process; it may have ended, and its id may be another one's.
std::map<DWORD, DWORD> ParentsOfAll()
{
    std::map<DWORD, DWORD> parents;
    const Platform::UniqueHandle<SnapshotTraits> snapshot(
        CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL isMore = snapshot && Process32FirstW(snapshot.Get(), &entry); isMore;
         isMore = Process32NextW(snapshot.Get(), &entry))
        parents[entry.th32ProcessID] = entry.th32ParentProcessID;
    return parents;
}

// 0 for a process that has ended.
quint64 StartTime(HANDLE process)
{
    FILETIME start = {};
    FILETIME end = {};
    FILETIME kernel = {};
    FILETIME user = {};
    const bool isRunning = WaitForSingleObject(process, 0) == WAIT_TIMEOUT &&
                           GetProcessTimes(process, &start, &end, &kernel, &user) != FALSE;
    return isRunning ? quint64{start.dwHighDateTime} << 32 | start.dwLowDateTime : 0;
}

Platform::UniqueProcess Open(qint64 processId, DWORD access)
{
    return Platform::UniqueProcess(
        OpenProcess(access | SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE,
            static_cast<DWORD>(processId)));
}

struct Closing
{
    DWORD processId;
    bool isAsked;
};

BOOL CALLBACK CloseIfOf(HWND window, LPARAM parameter)
{
    auto& closing = *reinterpret_cast<Closing*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == closing.processId && IsWindowVisible(window))
        closing.isAsked = PostMessageW(window, WM_CLOSE, 0, 0) != FALSE || closing.isAsked;
    return TRUE;
}

} // namespace

std::set<qint64> OwnProcessIds()
{
    const std::map<DWORD, DWORD> parents = ParentsOfAll();
    std::set<qint64> ids;
    quint64 latestStart = StartTimeOf(GetCurrentProcessId());
    for (DWORD id = GetCurrentProcessId(); id != 0;)
    {
        const quint64 start = StartTimeOf(id);
        if (start > latestStart || !ids.insert(id).second) // started after its child: another one
            break;
        latestStart = start;
        const auto parent = parents.find(id);
        id = parent == parents.end() ? 0 : parent->second;
    }
    return ids;
}

quint64 StartTimeOf(qint64 processId)
{
    const Platform::UniqueProcess process = Open(processId, 0);
    return process ? StartTime(process.Get()) : 0;
}

// While the process is open, its id is not used again.
bool AskToEnd(const FileHolder& holder)
{
    const Platform::UniqueProcess process = Open(holder.processId, 0);
    Closing closing{static_cast<DWORD>(holder.processId), false};
    if (process && StartTime(process.Get()) == holder.startTime)
        EnumWindows(&CloseIfOf, reinterpret_cast<LPARAM>(&closing));
    return closing.isAsked;
}

bool EndAtOnce(const FileHolder& holder)
{
    const Platform::UniqueProcess process = Open(holder.processId, PROCESS_TERMINATE);
    return process && StartTime(process.Get()) == holder.startTime &&
           TerminateProcess(process.Get(), exitCode) != FALSE;
}

} // namespace Vorlan::FrontEnd
