// Reads and writes files as a whole.
#pragma once

#include <windows.h>

#include <string>

namespace Pal
{

// Replaces the file, or changes nothing on failure.
DWORD WriteWholeFile(const std::string& path, const std::string& bytes);

// Reads from the descriptor's position to the end of the file.
DWORD ReadOpenFile(int descriptor, std::string& bytes);

DWORD ReadWholeFile(const std::string& path, std::string& bytes);

} // namespace Pal
