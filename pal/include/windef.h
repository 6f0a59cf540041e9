// The basic types of the Windows interface that this layer offers, for C and C++.
//
// WCHAR is wchar_t and therefore has four bytes: byte counts use sizeof(wchar_t). All integers have
// their Windows widths, so DWORD and LONG are 32 bits wide.
#ifndef PAL_WINDEF_H
#define PAL_WINDEF_H

#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

typedef int BOOL;
typedef unsigned int UINT;
typedef uint8_t BYTE;
typedef uint16_t WORD;
typedef uint32_t DWORD;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef size_t SIZE_T;
typedef int32_t HRESULT;

typedef char CHAR;
typedef wchar_t WCHAR;
typedef const CHAR* LPCSTR;
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;

typedef void* LPVOID;
typedef const void* LPCVOID;
typedef BYTE* LPBYTE;
typedef DWORD* LPDWORD;
typedef LONG* PLONG;

typedef void* HANDLE;
typedef struct HWND__* HWND;
typedef struct HINSTANCE__* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef struct HKEY__* HKEY;
typedef HKEY* PHKEY;

typedef struct _FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME, *PFILETIME, *LPFILETIME;

// Opaque on purpose: every function refuses them.
typedef struct _SECURITY_ATTRIBUTES SECURITY_ATTRIBUTES, *LPSECURITY_ATTRIBUTES;
typedef struct _OVERLAPPED OVERLAPPED, *LPOVERLAPPED;

#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

#define MAX_PATH 260
#define WINAPI
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)(-1))

#endif
