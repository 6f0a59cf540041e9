// The folders of the machine root.
#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

#include <windows.h>

namespace Pal
{

// Makes whatever of the machine's folders is missing.
std::error_code CreateMachine(const std::filesystem::path& root);

// Makes the machine that the environment names, and puts its programs within reach.
DWORD EnterMachine();

// Puts the machine's system folder first on this process's $PATH, so that what the process starts
// by name, in whatever way, comes from this machine. The system folder of any other machine goes.
void PutSystemFolderOnPath(const std::filesystem::path& root);

std::filesystem::path RegistryFolder(const std::filesystem::path& root);

std::filesystem::path MutexFolder(const std::filesystem::path& root);

// Where schtasks keeps the tasks.
std::filesystem::path TaskFolder(const std::filesystem::path& root);

// The folder for one of the CSIDL_ numbers, if the machine has it.
std::optional<std::filesystem::path> ShellFolder(const std::filesystem::path& root, int csidl);

} // namespace Pal
