// Searches for programs.
#pragma once

#include "process/CommandLine.h"

#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Pal
{

// The folders in which programs are searched, in order.
struct SearchedFolders
{
    std::vector<std::filesystem::path> ofPaths; // of relative paths
    std::vector<std::filesystem::path> ofNames; // of names without a folder
};

// The folder of the running program, the current folder, the machine's system folder and Windows
// folder, those of $PATH.
SearchedFolders FoldersOfCreateProcess();

// The folder to start in, unless it is empty, and the folders above without that of the running
// program.
SearchedFolders FoldersOfShell(const std::string& startFolder);

// The absolute path of a program that exists under its name or, if that has no extension, with
// ".exe" after it. A folder is no program.
DWORD FindProgram(std::wstring_view name, const SearchedFolders& folders, std::string& path);

// The program at the start of a command line: the shortest name that exists, and the text after it.
// If none exists the error is that of the shortest name.
DWORD FindProgramOf(std::wstring_view commandLine, std::string& path, ProgramName& found);

} // namespace Pal
