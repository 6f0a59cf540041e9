#include "OwnPath.h"

#include <windows.h>

#include <cstring>
#include <string>

std::filesystem::path OwnPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

void StartAgain(const char* argument)
{
    std::wstring line = L"\"" + OwnPath().wstring() + L"\" " +
                        std::wstring(argument, argument + std::strlen(argument));
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
            &information))
        return;
    CloseHandle(information.hThread);
    CloseHandle(information.hProcess);
}

void Crash()
{
    ExitProcess(EXCEPTION_ACCESS_VIOLATION); // without a debugger that opens a box
}
