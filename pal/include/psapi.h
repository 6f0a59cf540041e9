// The list of processes, for C and C++. What each call keeps, changes and refuses is documented at
// its definition.
#ifndef PAL_PSAPI_H
#define PAL_PSAPI_H

#include <windows.h>

#ifdef __cplusplus
extern "C"
{
#endif

    BOOL WINAPI K32EnumProcesses(LPDWORD processIds, DWORD size, LPDWORD bytesReturned);
    DWORD WINAPI K32GetModuleFileNameExW(
        HANDLE process, HMODULE module, LPWSTR fileName, DWORD size);

#ifdef __cplusplus
}
#endif

#endif
