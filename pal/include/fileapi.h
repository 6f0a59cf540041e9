// File calls, for C and C++. What each call keeps, changes and refuses is documented at its
// definition.
#ifndef PAL_FILEAPI_H
#define PAL_FILEAPI_H

#include <windef.h>

#ifdef __cplusplus
extern "C"
{
#endif

#define GENERIC_READ 0x80000000u
#define GENERIC_WRITE 0x40000000u

#define FILE_SHARE_READ 0x00000001u
#define FILE_SHARE_WRITE 0x00000002u
#define FILE_SHARE_DELETE 0x00000004u

#define CREATE_NEW 1
#define CREATE_ALWAYS 2
#define OPEN_EXISTING 3
#define OPEN_ALWAYS 4
#define TRUNCATE_EXISTING 5

#define FILE_ATTRIBUTE_READONLY 0x0001
#define FILE_ATTRIBUTE_DIRECTORY 0x0010
#define FILE_ATTRIBUTE_NORMAL 0x0080
#define FILE_ATTRIBUTE_REPARSE_POINT 0x0400
#define INVALID_FILE_ATTRIBUTES ((DWORD)-1)

#define FILE_BEGIN 0
#define FILE_CURRENT 1
#define FILE_END 2
#define INVALID_SET_FILE_POINTER ((DWORD)-1)
#define INVALID_FILE_SIZE ((DWORD)-1)

    HANDLE WINAPI CreateFileW(LPCWSTR fileName, DWORD desiredAccess, DWORD shareMode,
        LPSECURITY_ATTRIBUTES securityAttributes, DWORD creationDisposition,
        DWORD flagsAndAttributes, HANDLE templateFile);
    HANDLE WINAPI CreateFileA(LPCSTR fileName, DWORD desiredAccess, DWORD shareMode,
        LPSECURITY_ATTRIBUTES securityAttributes, DWORD creationDisposition,
        DWORD flagsAndAttributes, HANDLE templateFile);
    BOOL WINAPI ReadFile(
        HANDLE file, LPVOID buffer, DWORD bytesToRead, LPDWORD bytesRead, LPOVERLAPPED overlapped);
    BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD bytesToWrite, LPDWORD bytesWritten,
        LPOVERLAPPED overlapped);
    DWORD WINAPI SetFilePointer(
        HANDLE file, LONG distanceToMove, PLONG distanceToMoveHigh, DWORD moveMethod);
    DWORD WINAPI GetFileSize(HANDLE file, LPDWORD fileSizeHigh);
    BOOL WINAPI CreateDirectoryW(LPCWSTR pathName, LPSECURITY_ATTRIBUTES securityAttributes);
    DWORD WINAPI GetFileAttributesW(LPCWSTR fileName);
    BOOL WINAPI CloseHandle(HANDLE object);

    DWORD WINAPI GetLastError(void);
    void WINAPI SetLastError(DWORD error);

#ifdef __cplusplus
}
#endif

#endif
