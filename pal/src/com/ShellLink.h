// The object behind CLSID_ShellLink.
#pragma once

#include "com/LinkFile.h"

#include <shlobj.h>

#include <atomic>

namespace Pal
{

// A link with one reference.
IUnknown* MakeShellLink();

class ShellLink final : public IShellLinkW, public IPersistFile
{
public:
    HRESULT QueryInterface(REFIID iid, void** object) override;
    ULONG AddRef() override;
    ULONG Release() override;

    HRESULT GetPath(LPWSTR path, int size, WIN32_FIND_DATAW* data, DWORD flags) override;
    HRESULT SetPath(LPCWSTR path) override;
    HRESULT GetWorkingDirectory(LPWSTR folder, int size) override;
    HRESULT SetWorkingDirectory(LPCWSTR folder) override;
    HRESULT GetArguments(LPWSTR arguments, int size) override;
    HRESULT SetArguments(LPCWSTR arguments) override;

    HRESULT Load(LPCWSTR fileName, DWORD mode) override;
    HRESULT Save(LPCWSTR fileName, BOOL remember) override;

    // Refuses: the methods below, which the engine does not call.
    HRESULT GetIDList(ITEMIDLIST**) override { return E_NOTIMPL; }
    HRESULT SetIDList(const ITEMIDLIST*) override { return E_NOTIMPL; }
    HRESULT GetDescription(LPWSTR, int) override { return E_NOTIMPL; }
    HRESULT SetDescription(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT GetHotkey(WORD*) override { return E_NOTIMPL; }
    HRESULT SetHotkey(WORD) override { return E_NOTIMPL; }
    HRESULT GetShowCmd(int*) override { return E_NOTIMPL; }
    HRESULT SetShowCmd(int) override { return E_NOTIMPL; }
    HRESULT GetIconLocation(LPWSTR, int, int*) override { return E_NOTIMPL; }
    HRESULT SetIconLocation(LPCWSTR, int) override { return E_NOTIMPL; }
    HRESULT SetRelativePath(LPCWSTR, DWORD) override { return E_NOTIMPL; }
    HRESULT Resolve(HWND, DWORD) override { return E_NOTIMPL; }
    HRESULT GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT IsDirty() override { return E_NOTIMPL; }
    HRESULT SaveCompleted(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT GetCurFile(LPWSTR*) override { return E_NOTIMPL; }

private:
    ~ShellLink() = default;

    HRESULT WriteTo(LPCWSTR fileName) const;
    HRESULT ReadFrom(LPCWSTR fileName);

    std::atomic<ULONG> references = 1;
    LinkContent content;
};

} // namespace Pal
