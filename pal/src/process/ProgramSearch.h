// Where a program lies that a caller names.
#pragma once

#include "process/CommandLine.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace Pal
{

// Looks for the file under its name and, where that has no extension, with ".exe" behind it. A name
// without a folder is looked for in the folder of the running program, the current folder, the
// machine's system folder and then in those of $PATH. A folder is no program.
DWORD FindProgram(std::wstring_view name, std::string& path);

// The program at the start of a command line: the shortest name that is there, and the text behind
// it. Where there is none the error is that of the shortest name.
DWORD FindProgramOf(std::wstring_view commandLine, std::string& path, ProgramName& found);

} // namespace Pal
