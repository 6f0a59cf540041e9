// Shell folders, for C and C++. What is kept, changed and refused stands at the definition.
#ifndef PAL_SHLOBJ_H
#define PAL_SHLOBJ_H

#include <windows.h>

#ifdef __cplusplus
extern "C"
{
#endif

#define CSIDL_DESKTOP 0
#define CSIDL_PROGRAMS 2
#define CSIDL_COMMON_PROGRAMS 23
#define CSIDL_COMMON_DESKTOPDIRECTORY 25
#define CSIDL_APPDATA 26
#define CSIDL_LOCAL_APPDATA 28
#define CSIDL_COMMON_APPDATA 35
#define CSIDL_SYSTEM 37

    BOOL WINAPI SHGetSpecialFolderPathW(HWND owner, LPWSTR path, int csidl, BOOL create);

#ifdef __cplusplus
}
#endif

#endif
