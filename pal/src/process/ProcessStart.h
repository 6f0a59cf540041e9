// Starts programs.
#pragma once

#include "process/Process.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace Pal
{

struct ProcessStart
{
    std::string program;                       // the file
    std::vector<std::string> arguments;        // the program's own name first
    std::string folder;                        // initial folder; empty: the current one
    std::array<int, 3> streams = {-1, -1, -1}; // standard input, output, error; -1: nothing
    bool ownSession = false;
    bool elevated = false; // with administrator rights
};

// Plans the start of a program file. /bin/sh runs a ".bat"; cmd.exe parses the text after its name
// itself, so it receives that as one argument. words: the program's name and its arguments. rest:
// the arguments as they were written.
ProcessStart PlanStart(
    const std::string& program, std::vector<std::wstring> words, std::wstring_view rest);

// ERROR_DIRECTORY if the folder does not exist.
DWORD StartProcess(const ProcessStart& start, std::shared_ptr<Process>& process);

} // namespace Pal
