// The folders of the machine root.
#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

namespace Pal
{

// Makes whatever of the machine's folders is missing.
std::error_code CreateMachine(const std::filesystem::path& root);

std::filesystem::path RegistryFolder(const std::filesystem::path& root);

// The folder for one of the CSIDL_ numbers, if the machine has it.
std::optional<std::filesystem::path> ShellFolder(const std::filesystem::path& root, int csidl);

} // namespace Pal
