#include "process/ProcessList.h"

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "process/Process.h"

#include <QString>

#include <psapi.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <vector>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

DWORD ProcessIds(std::vector<DWORD>& ids)
{
    std::error_code error;
    fs::directory_iterator entry("/proc", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
    {
        bool isNumber = false;
        const uint id = QString::fromStdString(entry->path().filename()).toUInt(&isNumber);
        if (isNumber)
            ids.push_back(id);
    }
    return error ? ErrorFromErrno(error.value()) : ERROR_SUCCESS;
}

// The system appends a mark to the path of a deleted file. A file may have the mark in its name.
std::string WithoutDeletionMark(const std::string& path)
{
    constexpr std::string_view mark = " (deleted)";
    std::error_code error;
    const bool marked = path.size() > mark.size() &&
                        path.compare(path.size() - mark.size(), mark.size(), mark) == 0;
    return marked && !fs::exists(path, error) ? path.substr(0, path.size() - mark.size()) : path;
}

DWORD CopyCut(const std::wstring& text, LPWSTR buffer, DWORD size)
{
    const auto fitting = static_cast<DWORD>(std::min<size_t>(text.size(), size - 1));
    std::copy_n(text.begin(), fitting, buffer);
    buffer[fitting] = L'\0';
    return fitting == text.size() ? fitting : size;
}

} // namespace

DWORD ReadExecutable(pid_t id, std::string& path)
{
    std::error_code error;
    const fs::path target = fs::read_symlink("/proc/" + std::to_string(id) + "/exe", error);
    path = WithoutDeletionMark(target);
    return error ? ErrorFromErrno(error.value()) : ERROR_SUCCESS;
}

} // namespace Pal

// Keeps:   fills in the numbers that fit and returns how many bytes they take; numbers that do not
//          fit are not reported.
// Differs: number 0 is no process. Kernel threads and processes that ended but were not collected
//          are listed; neither has an executable.
BOOL K32EnumProcesses(LPDWORD processIds, DWORD size, LPDWORD bytesReturned)
{
    if (Pal::FaultHits(__func__))
        return FALSE;
    if ((!processIds && size) || !bytesReturned)
        return Pal::Failed(ERROR_INVALID_PARAMETER);
    std::vector<DWORD> ids;
    const DWORD error = Pal::ProcessIds(ids);
    if (error != ERROR_SUCCESS)
        return Pal::Failed(error);
    const size_t count = std::min(ids.size(), size / sizeof(DWORD));
    std::copy_n(ids.begin(), count, processIds);
    *bytesReturned = static_cast<DWORD>(count * sizeof(DWORD));
    return TRUE;
}

// Keeps:   a path that does not fit is cut, the result is then the buffer's size and the last error
//          is unchanged; 0 on failure, such as for a process that has ended or a handle without the
//          rights to query and read.
// Differs: the separator is "/"; a cut text always ends with a zero; a script shows its
//          interpreter; a file that was deleted or moved keeps its former path if the system knows
//          it.
// Refuses: every module but the executable.
DWORD K32GetModuleFileNameExW(HANDLE process, HMODULE module, LPWSTR fileName, DWORD size)
{
    if (Pal::FaultHits(__func__))
        return 0;
    const auto handle =
        Pal::FindProcessHandle(process, PROCESS_QUERY_INFORMATION | PROCESS_VM_READ);
    if (!handle)
        return 0;
    std::string path;
    DWORD error = ERROR_NOT_SUPPORTED;
    if (!module)
        error = fileName && size > 0 ? Pal::ReadExecutable(handle->Target().Id(), path)
                                     : DWORD{ERROR_INSUFFICIENT_BUFFER};
    // Only now is it sure that the number still meant this process.
    if (error == ERROR_SUCCESS && handle->Target().HasEnded())
        error = ERROR_INVALID_HANDLE;
    if (error == ERROR_SUCCESS)
        return Pal::CopyCut(QString::fromStdString(path).toStdWString(), fileName, size);
    SetLastError(error);
    return 0;
}
