#include <shellapi.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "Machine.h"
#include "WideText.h"
#include "process/CommandLine.h"
#include "process/ProcessStart.h"
#include "process/ProgramSearch.h"

#include <QFileInfo>
#include <QStringList>

namespace Pal
{

namespace
{

bool IsRunAs(LPCWSTR verb)
{
    return verb && std::wstring_view(verb) == L"runas";
}

bool IsKnownVerb(LPCWSTR verb)
{
    const std::wstring_view text = verb ? verb : L"";
    return text.empty() || text == L"open" || IsRunAs(verb);
}

DWORD CheckExecution(const SHELLEXECUTEINFOW* info)
{
    if (!info || info->cbSize != sizeof(SHELLEXECUTEINFOW))
        return ERROR_INVALID_PARAMETER;
    if ((info->fMask & ~ULONG{SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI}) ||
        !IsKnownVerb(info->lpVerb) || (info->nShow != SW_HIDE && info->nShow != SW_SHOW))
        return ERROR_NOT_SUPPORTED;
    return info->lpFile ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

std::wstring_view WithoutQuotes(std::wstring_view name)
{
    if (name.substr(0, 1) != L"\"")
        return name;
    name.remove_prefix(1);
    return name.substr(0, name.find(L'"'));
}

bool IsProgramName(const std::string& path)
{
    const QString extension = QFileInfo(QString::fromStdString(path)).suffix().toLower();
    return QStringList{"", "exe", "com", "bat", "cmd"}.contains(extension);
}

DWORD FindFolder(const SHELLEXECUTEINFOW& info, std::string& folder)
{
    if (!info.lpDirectory || !*info.lpDirectory)
        return ERROR_SUCCESS;
    return NativePath(info.lpDirectory, folder);
}

DWORD Plan(const SHELLEXECUTEINFOW& info, ProcessStart& start)
{
    const std::wstring_view name = WithoutQuotes(info.lpFile);
    const std::wstring_view parameters = info.lpParameters ? info.lpParameters : L"";
    std::string folder;
    std::string program;
    DWORD error = FindFolder(info, folder);
    if (error == ERROR_SUCCESS)
        error = FindProgram(name, FoldersOfShell(folder), program);
    if (error == ERROR_SUCCESS && !IsProgramName(program))
        error = ERROR_NO_ASSOCIATION;
    if (error != ERROR_SUCCESS)
        return error;
    std::vector<std::wstring> words = SplitCommandLine(parameters, FirstWord::IsArgument);
    words.insert(words.begin(), std::wstring(name));
    start = PlanStart(program, std::move(words), parameters);
    start.folder = folder;
    start.ownSession = true;
    start.elevated = IsRunAs(info.lpVerb);
    return ERROR_SUCCESS;
}

DWORD Execute(SHELLEXECUTEINFOW& info)
{
    ProcessStart start;
    std::shared_ptr<Process> process;
    DWORD error = EnterMachine();
    if (error == ERROR_SUCCESS && IsRunAs(info.lpVerb) && MachineRights() == Rights::Refused)
        error = ERROR_CANCELLED;
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
// Keeps:   lpFile may be quoted; it is searched in lpDirectory, the current folder, the system
//          folder, the Windows folder and $PATH. A file with an extension that is not a program's
//          is ERROR_NO_ASSOCIATION. hProcess is null, unless SEE_MASK_NOCLOSEPROCESS asks for it.
//          Fields that need another mask bit are ignored. SEE_MASK_FLAG_NO_UI changes nothing,
//          because no box is ever shown.
// Differs: the arguments are split from lpParameters by the rules of the C run-time library. A file
//          without an extension is a program. "runas" asks nobody: "rights" in machine.ini has the
//          answer, ERROR_CANCELLED if it is "refused". The program has no standard streams and its
//          own session, whether hidden or shown. hInstApp is not set.
// Refuses: other verbs, flags and ways to show.
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
