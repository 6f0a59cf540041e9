// Registry calls, for C and C++. What each call keeps, changes and refuses is documented at its
// definition.
#ifndef PAL_WINREG_H
#define PAL_WINREG_H

#include <windef.h>
#include <winerror.h>

#ifdef __cplusplus
extern "C"
{
#endif

    typedef DWORD REGSAM;

#define HKEY_CURRENT_USER ((HKEY)(ULONG_PTR)((LONG)0x80000001))
#define HKEY_LOCAL_MACHINE ((HKEY)(ULONG_PTR)((LONG)0x80000002))

#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_BINARY 3
#define REG_DWORD 4
#define REG_MULTI_SZ 7
#define REG_QWORD 11

#define KEY_QUERY_VALUE 0x0001
#define KEY_SET_VALUE 0x0002
#define KEY_ENUMERATE_SUB_KEYS 0x0008
#define KEY_WOW64_64KEY 0x0100
#define KEY_WOW64_32KEY 0x0200
#define KEY_READ 0x20019
#define KEY_WRITE 0x20006
#define KEY_ALL_ACCESS 0xF003F

#define REG_OPTION_NON_VOLATILE 0
#define REG_CREATED_NEW_KEY 1
#define REG_OPENED_EXISTING_KEY 2

    LSTATUS WINAPI RegCreateKeyExW(HKEY key, LPCWSTR subKey, DWORD reserved, LPWSTR className,
        DWORD options, REGSAM desiredAccess, const LPSECURITY_ATTRIBUTES securityAttributes,
        PHKEY result, LPDWORD disposition);
    LSTATUS WINAPI RegOpenKeyExW(
        HKEY key, LPCWSTR subKey, DWORD options, REGSAM desiredAccess, PHKEY result);
    LSTATUS WINAPI RegCloseKey(HKEY key);
    LSTATUS WINAPI RegOverridePredefKey(HKEY key, HKEY replacement);
    LSTATUS WINAPI RegDeleteKeyW(HKEY key, LPCWSTR subKey);

    LSTATUS WINAPI RegSetValueExW(
        HKEY key, LPCWSTR valueName, DWORD reserved, DWORD type, const BYTE* data, DWORD dataSize);
    LSTATUS WINAPI RegQueryValueExW(
        HKEY key, LPCWSTR valueName, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD dataSize);
    LSTATUS WINAPI RegDeleteValueW(HKEY key, LPCWSTR valueName);

    LSTATUS WINAPI RegEnumValueW(HKEY key, DWORD index, LPWSTR valueName, LPDWORD valueNameLength,
        LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD dataSize);
    LSTATUS WINAPI RegEnumKeyExW(HKEY key, DWORD index, LPWSTR name, LPDWORD nameLength,
        LPDWORD reserved, LPWSTR className, LPDWORD classLength, PFILETIME lastWriteTime);

#ifdef __cplusplus
}
#endif

#endif
