#pragma once

#include <filesystem>

// The path of the running program.
std::filesystem::path OwnPath();

// Starts the running program once more, with one argument and this one's output.
void StartAgain(const char* argument);

// Ends as a program does that touches what is not its own.
[[noreturn]] void Crash();
