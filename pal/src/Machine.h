// The folders of the machine root.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <system_error>

namespace Pal
{

// Creates the missing folders and links of the machine.
std::error_code CreateMachine(const std::filesystem::path& root);

// Creates the machine that the environment names and puts its system folder on the $PATH.
DWORD EnterMachine();

// Puts the machine's system folder first in this process's $PATH, so that QProcess and child
// processes start this machine's programs too. System folders of other machines are removed.
void PutSystemFolderOnPath(const std::filesystem::path& root);

std::filesystem::path RegistryFolder(const std::filesystem::path& root);

std::filesystem::path MutexFolder(const std::filesystem::path& root);

// The folder in which schtasks stores the tasks.
std::filesystem::path TaskFolder(const std::filesystem::path& root);

// The answer of this machine's user to a request for administrator rights, and whether the programs
// have them without a request: "rights" in machine.ini.
enum class Rights
{
    Administrator, // every program has them (default)
    OnRequest,     // "request": programs started with "runas", and those that they start
    Refused        // "refused": no program; every request is refused
};
Rights MachineRights();

// Whether this process may change HKEY_LOCAL_MACHINE.
bool IsAdministrator();

// The variable of the environment that a program started with "runas" gets, with the value "1".
inline constexpr char elevatedVariable[] = "VORLAN_ELEVATED";

// The folder for one of the CSIDL_ numbers, if the machine has it.
std::optional<std::filesystem::path> ShellFolder(const std::filesystem::path& root, int csidl);

} // namespace Pal
