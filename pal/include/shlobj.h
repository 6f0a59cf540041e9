// Shell folders, for C and C++, and shell links, for C++. What is kept, changed and refused is
// documented at the definition.
#ifndef PAL_SHLOBJ_H
#define PAL_SHLOBJ_H

#include <windows.h>

#ifdef __cplusplus
#include <objbase.h>
#endif

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
#define CSIDL_PROGRAM_FILES 38

    BOOL WINAPI SHGetSpecialFolderPathW(HWND owner, LPWSTR path, int csidl, BOOL create);

#ifdef __cplusplus
}

#define SLGP_RAWPATH 4

// Opaque on purpose: no method fills them.
struct WIN32_FIND_DATAW;
struct ITEMIDLIST;

inline constexpr CLSID CLSID_ShellLink = {0x00021401, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IShellLinkW = {0x000214F9, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

struct IShellLinkW : IUnknown
{
    virtual HRESULT GetPath(LPWSTR path, int size, WIN32_FIND_DATAW* data, DWORD flags) = 0;
    virtual HRESULT GetIDList(ITEMIDLIST** list) = 0;
    virtual HRESULT SetIDList(const ITEMIDLIST* list) = 0;
    virtual HRESULT GetDescription(LPWSTR description, int size) = 0;
    virtual HRESULT SetDescription(LPCWSTR description) = 0;
    virtual HRESULT GetWorkingDirectory(LPWSTR folder, int size) = 0;
    virtual HRESULT SetWorkingDirectory(LPCWSTR folder) = 0;
    virtual HRESULT GetArguments(LPWSTR arguments, int size) = 0;
    virtual HRESULT SetArguments(LPCWSTR arguments) = 0;
    virtual HRESULT GetHotkey(WORD* hotkey) = 0;
    virtual HRESULT SetHotkey(WORD hotkey) = 0;
    virtual HRESULT GetShowCmd(int* showCommand) = 0;
    virtual HRESULT SetShowCmd(int showCommand) = 0;
    virtual HRESULT GetIconLocation(LPWSTR path, int size, int* icon) = 0;
    virtual HRESULT SetIconLocation(LPCWSTR path, int icon) = 0;
    virtual HRESULT SetRelativePath(LPCWSTR path, DWORD reserved) = 0;
    virtual HRESULT Resolve(HWND owner, DWORD flags) = 0;
    virtual HRESULT SetPath(LPCWSTR path) = 0;

protected:
    ~IShellLinkW() = default;
};

#endif

#endif
