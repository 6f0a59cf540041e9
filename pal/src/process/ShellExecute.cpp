#include <shellapi.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "Machine.h"
#include "WideText.h"
#include "process/CommandLine.h"
#include "process/ProcessStart.h"
#include "process/ProgramSearch.h"

namespace Pal
{

namespace
{

bool IsKnownVerb(LPCWSTR verb)
{
    const std::wstring_view text = verb ? verb : L"open";
    return text == L"open" || text == L"runas";
}

DWORD CheckExecution(const SHELLEXECUTEINFOW* info)
{
    if (!info || info->cbSize != sizeof(SHELLEXECUTEINFOW))
        return ERROR_INVALID_PARAMETER;
    const bool wantsMore = info->lpIDList || info->lpClass || info->hkeyClass || info->dwHotKey;
    if (wantsMore || (info->fMask & ~ULONG{SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI}) ||
        !IsKnownVerb(info->lpVerb) || (info->nShow != SW_HIDE && info->nShow != SW_SHOW))
        return ERROR_NOT_SUPPORTED;
    return info->lpFile ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

DWORD Plan(const SHELLEXECUTEINFOW& info, ProcessStart& start)
{
    const std::wstring_view parameters = info.lpParameters ? info.lpParameters : L"";
    std::string program;
    const DWORD error = FindProgram(info.lpFile, program);
    if (error != ERROR_SUCCESS)
        return error;
    std::vector<std::wstring> words = SplitCommandLine(parameters, FirstWord::IsArgument);
    words.insert(words.begin(), info.lpFile);
    start = PlanStart(program, std::move(words), parameters);
    start.ownSession = true;
    if (!info.lpDirectory || !*info.lpDirectory)
        return ERROR_SUCCESS;
    return NativePath(info.lpDirectory, start.folder);
}

DWORD Execute(SHELLEXECUTEINFOW& info)
{
    ProcessStart start;
    std::shared_ptr<Process> process;
    DWORD error = EnterMachine();
    if (error == ERROR_SUCCESS)
        error = Plan(info, start);
    if (error == ERROR_SUCCESS)
        error = StartProcess(start, process);
    if (error == ERROR_SUCCESS && (info.fMask & SEE_MASK_NOCLOSEPROCESS))
        info.hProcess =
            HandleTable::Instance().Add(std::make_shared<ProcessHandle>(process, allProcessAccess));
    return error;
}

} // namespace

} // namespace Pal

// Starts a program, or a ".bat" with /bin/sh, that may outlive this process.
// Keeps:   lpFile is looked for as CreateProcessW looks for a program; the arguments are cut from
//          lpParameters by the Windows rules; hProcess is set with SEE_MASK_NOCLOSEPROCESS only.
//          SEE_MASK_FLAG_NO_UI changes nothing, because no box is ever shown.
// Differs: "runas" asks nobody and changes no rights; a test stands for the refusal with an
//          injected ERROR_CANCELLED. The program has no standard streams and a session of its own,
//          hidden or shown. hInstApp stays as it is.
// Refuses: other verbs, flags and ways to show; documents, which no program is known for: they are
//          ERROR_ACCESS_DENIED or ERROR_BAD_EXE_FORMAT.
BOOL ShellExecuteExW(SHELLEXECUTEINFOW* info)
{
    if (info)
        info->hProcess = nullptr;
    if (Pal::FaultHits(__func__))
        return FALSE;
    DWORD error = Pal::CheckExecution(info);
    if (error == ERROR_SUCCESS)
        error = Pal::Execute(*info);
    return error == ERROR_SUCCESS ? TRUE : Pal::Failed(error);
}
