#include <windows.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "Machine.h"
#include "WideText.h"
#include "process/CommandLine.h"
#include "process/ProcessStart.h"
#include "process/ProgramSearch.h"

#include <Pal.h>

#include <filesystem>

namespace Pal
{

namespace
{

// The handles of GetStdHandle are fixed numbers that the handle table never uses.
HANDLE StandardHandle(DWORD stream)
{
    return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(static_cast<LONG>(stream)));
}

DWORD StreamOf(HANDLE handle, int& stream)
{
    const DWORD streams[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    for (int number = 0; number < 3; ++number)
    {
        if (handle == StandardHandle(streams[number]))
            stream = number;
    }
    return !handle || stream >= 0 ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

DWORD ChooseStreams(const STARTUPINFOW& info, DWORD creationFlags, std::array<int, 3>& streams)
{
    if (!(info.dwFlags & STARTF_USESTDHANDLES))
    {
        if (!(creationFlags & CREATE_NO_WINDOW))
            streams = {0, 1, 2};
        return ERROR_SUCCESS;
    }
    DWORD error = StreamOf(info.hStdInput, streams[0]);
    if (error == ERROR_SUCCESS)
        error = StreamOf(info.hStdOutput, streams[1]);
    return error == ERROR_SUCCESS ? StreamOf(info.hStdError, streams[2]) : error;
}

DWORD CheckStart(const STARTUPINFOW* info, DWORD creationFlags, BOOL inheritHandles, bool hasExtras)
{
    if (!info || info->cb != sizeof(STARTUPINFOW))
        return ERROR_INVALID_PARAMETER;
    if (hasExtras || (creationFlags & ~DWORD{CREATE_NO_WINDOW}) ||
        (info->dwFlags & ~DWORD{STARTF_USESTDHANDLES}))
        return ERROR_NOT_SUPPORTED;
    const bool givesStreams = info->dwFlags & STARTF_USESTDHANDLES;
    return givesStreams && !inheritHandles ? ERROR_NOT_SUPPORTED : ERROR_SUCCESS;
}

// The file is given, so the command line only holds the arguments, after some first word.
DWORD PlanNamed(LPCWSTR applicationName, std::wstring_view commandLine, ProcessStart& start)
{
    const std::wstring_view name = applicationName;
    std::string program;
    const DWORD error = NativePath(applicationName, program);
    const std::vector<ProgramName> firstWords = PossiblePrograms(commandLine);
    if (error != ERROR_SUCCESS || firstWords.empty())
        return error == ERROR_SUCCESS ? DWORD{ERROR_INVALID_PARAMETER} : error;
    std::error_code ignored;
    program = std::filesystem::absolute(program, ignored);
    const bool beginsWithName = commandLine.substr(0, name.size()) == name;
    start = PlanStart(program, SplitCommandLine(commandLine, FirstWord::NamesProgram),
        beginsWithName ? commandLine.substr(name.size()) : firstWords.front().rest);
    return ERROR_SUCCESS;
}

// The command line begins with the file, which as a whole is the child's first argument.
DWORD PlanSearched(std::wstring_view commandLine, ProcessStart& start)
{
    std::string program;
    ProgramName found;
    const DWORD error = FindProgramOf(commandLine, program, found);
    if (error != ERROR_SUCCESS)
        return error;
    std::vector<std::wstring> words = SplitCommandLine(found.rest, FirstWord::IsArgument);
    words.insert(words.begin(), std::wstring(found.name));
    start = PlanStart(program, std::move(words), found.rest);
    return ERROR_SUCCESS;
}

DWORD Plan(LPCWSTR applicationName, std::wstring_view commandLine, ProcessStart& start)
{
    return applicationName ? PlanNamed(applicationName, commandLine, start)
                           : PlanSearched(commandLine, start);
}

DWORD AddFolder(LPCWSTR folder, ProcessStart& start)
{
    if (!folder)
        return ERROR_SUCCESS;
    return NativePath(folder, start.folder) == ERROR_SUCCESS ? ERROR_SUCCESS : ERROR_DIRECTORY;
}

PROCESS_INFORMATION HandOut(const std::shared_ptr<Process>& process)
{
    HandleTable& table = HandleTable::Instance();
    const auto id = static_cast<DWORD>(process->Id());
    return {table.Add(std::make_shared<ProcessHandle>(process, allProcessAccess)),
        table.Add(std::make_shared<ThreadHandle>(process->Id())), id, id};
}

} // namespace

} // namespace Pal

// Starts a program of this system, or a ".bat" with /bin/sh.
// Keeps:   without an application name the command line begins with the program: quoted, or
//          unquoted, and then every blank may end it; the shortest name that exists is used and is
//          the child's first argument. A name is searched in the folder of the running program, the
//          current folder, the system folder, the Windows folder and $PATH; a relative path begins
//          in the current folder, whatever currentDirectory is. The errors of the start are
//          returned: a missing file, one that is not executable (ERROR_ACCESS_DENIED) or no program
//          (ERROR_BAD_EXE_FORMAT), a missing folder to start in (ERROR_DIRECTORY). A failure clears
//          the process information.
// Differs: the child's arguments are split here, by the rules of the C run-time library; cmd.exe
//          gets the text after its name as it is. A name without an extension is searched before
//          ".exe" is added to it. The lengths of the command line and of names are not limited.
//          With CREATE_NO_WINDOW the child has only the standard streams that it is given, without
//          it those of this process; it inherits no other handles, and a null handle is no stream.
//          A ".bat" gets the words of the command line without their quotes. The thread handle can
//          only be closed.
// Refuses: every other creation flag, start-up flag and attribute, an environment block, streams
//          without inheritHandles, streams that are not from GetStdHandle.
BOOL CreateProcessW(LPCWSTR applicationName, LPWSTR commandLine,
    LPSECURITY_ATTRIBUTES processAttributes, LPSECURITY_ATTRIBUTES threadAttributes,
    BOOL inheritHandles, DWORD creationFlags, LPVOID environment, LPCWSTR currentDirectory,
    LPSTARTUPINFOW startupInfo, LPPROCESS_INFORMATION processInformation)
{
    if (processInformation)
        *processInformation = {};
    if (Pal::FaultHits(__func__))
        return FALSE;
    DWORD error = Pal::CheckStart(startupInfo, creationFlags, inheritHandles,
        processAttributes || threadAttributes || environment);
    const std::wstring_view line = commandLine       ? commandLine
                                   : applicationName ? applicationName
                                                     : L"";
    if (error == ERROR_SUCCESS && ((line.empty() && !applicationName) || !processInformation))
        error = ERROR_INVALID_PARAMETER;
    if (error == ERROR_SUCCESS)
        error = Pal::EnterMachine();
    Pal::ProcessStart start;
    if (error == ERROR_SUCCESS)
        error = Pal::Plan(applicationName, line, start);
    if (error == ERROR_SUCCESS)
        error = Pal::AddFolder(currentDirectory, start);
    if (error == ERROR_SUCCESS)
        error = Pal::ChooseStreams(*startupInfo, creationFlags, start.streams);
    std::shared_ptr<Pal::Process> process;
    if (error == ERROR_SUCCESS)
        error = Pal::StartProcess(start, process);
    if (error != ERROR_SUCCESS)
        return Pal::Failed(error);
    *processInformation = Pal::HandOut(process);
    return TRUE;
}

// Keeps:   INVALID_HANDLE_VALUE and ERROR_INVALID_HANDLE for any other number.
// Differs: the handle only serves to be given to CreateProcessW, also where the stream is closed.
HANDLE GetStdHandle(DWORD stream)
{
    if (Pal::FaultHits(__func__))
        return INVALID_HANDLE_VALUE;
    if (stream == STD_INPUT_HANDLE || stream == STD_OUTPUT_HANDLE || stream == STD_ERROR_HANDLE)
        return Pal::StandardHandle(stream);
    SetLastError(ERROR_INVALID_HANDLE);
    return INVALID_HANDLE_VALUE;
}
