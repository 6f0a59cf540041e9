#include "Terminal.h"

#include "base/ProductProfile.h"

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

bool ConnectToConsole()
{
    const bool hasOutput = IsConnected(STD_OUTPUT_HANDLE);
    const bool hasErrors = IsConnected(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || !AttachConsole(ATTACH_PARENT_PROCESS))
    {
        return hasOutput || hasErrors;
    }
    if (!hasOutput)
    {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!hasErrors)
    {
        std::freopen("CONOUT$", "w", stderr);
    }
    return true;
}

void ShowBox(const QString& text)
{
    const std::wstring title = QString(ProductProfile::productFullName).toStdWString();
    MessageBoxW(nullptr, text.toStdWString().c_str(), title.c_str(), MB_OK | MB_SETFOREGROUND);
}

} // namespace Vorlan::FrontEnd
