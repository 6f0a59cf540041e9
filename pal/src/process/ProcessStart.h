// Starts programs.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "Process.h"

namespace Pal
{

struct ProcessStart
{
    std::string program;                       // the file
    std::vector<std::string> arguments;        // the program's own name first
    std::string folder;                        // where it starts; empty: the current one
    std::array<int, 3> streams = {-1, -1, -1}; // standard input, output, error; -1: nothing
    bool ownSession = false;
};

// Says how the program is to be started that lies at a path: a ".bat" is read by the shell, and
// cmd.exe reads the text behind its name itself, so it gets that as one argument. words: the
// program's name and its arguments. rest: the same arguments as they were written.
ProcessStart PlanStart(
    const std::string& program, std::vector<std::wstring> words, std::wstring_view rest);

// ERROR_DIRECTORY: there is no such folder to start in.
DWORD StartProcess(const ProcessStart& start, std::shared_ptr<Process>& process);

} // namespace Pal
