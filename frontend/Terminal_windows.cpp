#include "Terminal.h"

#include <windows.h>

#include <cstdio>

namespace Vorlan::FrontEnd
{

bool IsOutputTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != FALSE;
}

namespace
{

bool IsConnected(DWORD handleName)
{
    const HANDLE handle = GetStdHandle(handleName);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE &&
           GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

} // namespace

void ConnectToConsole()
{
    const bool hasOutput = IsConnected(STD_OUTPUT_HANDLE);
    const bool hasErrors = IsConnected(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || !AttachConsole(ATTACH_PARENT_PROCESS))
    {
        return;
    }
    if (!hasOutput)
    {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!hasErrors)
    {
        std::freopen("CONOUT$", "w", stderr);
    }
}

} // namespace Vorlan::FrontEnd
