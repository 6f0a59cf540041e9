// Files that are read and written as one piece.
#pragma once

#include <string>

#include <windows.h>

namespace Pal
{

// Puts a complete file in the place of whatever bears the name, or leaves everything as it was.
DWORD WriteWholeFile(const std::string& path, const std::string& bytes);

DWORD ReadWholeFile(const std::string& path, std::string& bytes);

} // namespace Pal
