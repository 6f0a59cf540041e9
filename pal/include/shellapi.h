// Starting programs through the shell, for C and C++. What is kept, changed and refused is
// documented at the definition.
#ifndef PAL_SHELLAPI_H
#define PAL_SHELLAPI_H

#include <windows.h>

#ifdef __cplusplus
extern "C"
{
#endif

#define SW_HIDE 0
#define SW_SHOW 5

#define SEE_MASK_NOCLOSEPROCESS 0x00000040
#define SEE_MASK_FLAG_NO_UI 0x00000400

    typedef struct _SHELLEXECUTEINFOW
    {
        DWORD cbSize;
        ULONG fMask;
        HWND hwnd;
        LPCWSTR lpVerb;
        LPCWSTR lpFile;
        LPCWSTR lpParameters;
        LPCWSTR lpDirectory;
        int nShow;
        HINSTANCE hInstApp;
        void* lpIDList;
        LPCWSTR lpClass;
        HKEY hkeyClass;
        DWORD dwHotKey;
        HANDLE hMonitor;
        HANDLE hProcess;
    } SHELLEXECUTEINFOW, *LPSHELLEXECUTEINFOW;

    BOOL WINAPI ShellExecuteExW(SHELLEXECUTEINFOW* info);

#ifdef __cplusplus
}
#endif

#endif
