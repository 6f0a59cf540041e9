#pragma once

#include <filesystem>

// The path of the running program.
std::filesystem::path OwnPath();
