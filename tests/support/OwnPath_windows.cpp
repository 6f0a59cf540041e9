#include "OwnPath.h"

#include <windows.h>

std::filesystem::path OwnPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}
