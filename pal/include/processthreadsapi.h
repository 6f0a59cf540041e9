// Processes, for C and C++. What each call keeps, changes and refuses is documented at its
// definition.
#ifndef PAL_PROCESSTHREADSAPI_H
#define PAL_PROCESSTHREADSAPI_H

#include <windef.h>

#ifdef __cplusplus
extern "C"
{
#endif

#define PROCESS_TERMINATE 0x0001
#define PROCESS_VM_READ 0x0010
#define PROCESS_QUERY_INFORMATION 0x0400
#define SYNCHRONIZE 0x00100000

#define CREATE_NO_WINDOW 0x08000000
#define STARTF_USESTDHANDLES 0x00000100
#define STILL_ACTIVE 259

#define STD_INPUT_HANDLE ((DWORD)-10)
#define STD_OUTPUT_HANDLE ((DWORD)-11)
#define STD_ERROR_HANDLE ((DWORD)-12)

    typedef struct _STARTUPINFOW
    {
        DWORD cb;
        LPWSTR lpReserved;
        LPWSTR lpDesktop;
        LPWSTR lpTitle;
        DWORD dwX;
        DWORD dwY;
        DWORD dwXSize;
        DWORD dwYSize;
        DWORD dwXCountChars;
        DWORD dwYCountChars;
        DWORD dwFillAttribute;
        DWORD dwFlags;
        WORD wShowWindow;
        WORD cbReserved2;
        LPBYTE lpReserved2;
        HANDLE hStdInput;
        HANDLE hStdOutput;
        HANDLE hStdError;
    } STARTUPINFOW, *LPSTARTUPINFOW;

    typedef struct _PROCESS_INFORMATION
    {
        HANDLE hProcess;
        HANDLE hThread;
        DWORD dwProcessId;
        DWORD dwThreadId;
    } PROCESS_INFORMATION, *PPROCESS_INFORMATION, *LPPROCESS_INFORMATION;

    BOOL WINAPI CreateProcessW(LPCWSTR applicationName, LPWSTR commandLine,
        LPSECURITY_ATTRIBUTES processAttributes, LPSECURITY_ATTRIBUTES threadAttributes,
        BOOL inheritHandles, DWORD creationFlags, LPVOID environment, LPCWSTR currentDirectory,
        LPSTARTUPINFOW startupInfo, LPPROCESS_INFORMATION processInformation);
    HANDLE WINAPI OpenProcess(DWORD desiredAccess, BOOL inheritHandle, DWORD processId);
    BOOL WINAPI TerminateProcess(HANDLE process, UINT exitCode);
    BOOL WINAPI GetExitCodeProcess(HANDLE process, LPDWORD exitCode);
    HANDLE WINAPI GetStdHandle(DWORD stream);

#ifdef __cplusplus
}
#endif

#endif
