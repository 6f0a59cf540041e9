#include "ShellLink.h"

#include <algorithm>
#include <cstdlib>

#include "../LastError.h"
#include "../WholeFile.h"
#include "../WideText.h"
#include "ComFaults.h"

namespace Pal
{

namespace
{

HRESULT CopyText(const std::u16string& text, LPWSTR buffer, int size)
{
    if (!buffer || size <= 0)
        return E_INVALIDARG;
    const std::wstring wide = WideFromUtf16(text);
    const size_t count = std::min(wide.size(), static_cast<size_t>(size) - 1);
    std::copy_n(wide.begin(), count, buffer);
    buffer[count] = L'\0';
    return S_OK;
}

HRESULT ResultOf(DWORD error)
{
    SetLastError(error);
    return HRESULT_FROM_WIN32(error);
}

} // namespace

IUnknown* MakeShellLink()
{
    return static_cast<IShellLinkW*>(new ShellLink);
}

HRESULT ShellLink::QueryInterface(REFIID iid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (const auto fault = InjectedResult("IUnknown::QueryInterface"))
        return *fault;
    if (iid == IID_IUnknown || iid == IID_IShellLinkW)
        *object = static_cast<IShellLinkW*>(this);
    else if (iid == IID_IPersist || iid == IID_IPersistFile)
        *object = static_cast<IPersistFile*>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG ShellLink::AddRef()
{
    return ++m_references;
}

ULONG ShellLink::Release()
{
    const ULONG left = --m_references;
    if (left == 0)
        delete this;
    return left;
}

// Keeps:   S_FALSE and an empty text for a link without a target; a text that does not fit is cut.
// Refuses: flags other than none and SLGP_RAWPATH, which mean the same here, and file data.
HRESULT ShellLink::GetPath(LPWSTR path, int size, WIN32_FIND_DATAW* data, DWORD flags)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetPath"))
        return *fault;
    if (data || (flags & ~DWORD{SLGP_RAWPATH}))
        return E_INVALIDARG;
    const HRESULT result = CopyText(m_content.target, path, size);
    return result == S_OK && m_content.target.empty() ? S_FALSE : result;
}

// Differs: any text is kept as it is: quotes stay, and a path is not made absolute.
// Refuses: no text at all.
HRESULT ShellLink::SetPath(LPCWSTR path)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetPath"))
        return *fault;
    return SetText(m_content.target, path);
}

// Keeps:   a text that does not fit is cut.
HRESULT ShellLink::GetWorkingDirectory(LPWSTR folder, int size)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetWorkingDirectory"))
        return *fault;
    return CopyText(m_content.workingFolder, folder, size);
}

// Keeps:   any text is kept as it is.
// Refuses: no text at all.
HRESULT ShellLink::SetWorkingDirectory(LPCWSTR folder)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetWorkingDirectory"))
        return *fault;
    return SetText(m_content.workingFolder, folder);
}

// Keeps:   a text that does not fit is cut.
HRESULT ShellLink::GetArguments(LPWSTR arguments, int size)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetArguments"))
        return *fault;
    return CopyText(m_content.arguments, arguments, size);
}

// Keeps:   any text is kept as it is.
// Refuses: no text at all.
HRESULT ShellLink::SetArguments(LPCWSTR arguments)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetArguments"))
        return *fault;
    return SetText(m_content.arguments, arguments);
}

HRESULT ShellLink::GetClassID(CLSID* classId)
{
    if (const auto fault = InjectedResult("IPersist::GetClassID"))
        return *fault;
    if (!classId)
        return E_POINTER;
    *classId = CLSID_ShellLink;
    return S_OK;
}

// Keeps:   S_OK when something was set since the link was made, loaded or saved; S_FALSE else.
HRESULT ShellLink::IsDirty()
{
    if (const auto fault = InjectedResult("IPersistFile::IsDirty"))
        return *fault;
    return m_changed ? S_OK : S_FALSE;
}

// Keeps:   the link becomes what the file says, or stays as it was on a failure: E_FAIL for a file
//          that is no link, ERROR_FILE_NOT_FOUND as a result when there is none.
// Differs: a failure sets the last error. The target must be among the link information; an item
//          list alone leaves the link without one.
// Refuses: every mode but STGM_READ.
HRESULT ShellLink::Load(LPCWSTR fileName, DWORD mode)
{
    if (const auto fault = InjectedResult("IPersistFile::Load"))
        return *fault;
    if (mode != STGM_READ)
        return E_INVALIDARG;
    const HRESULT result = ReadFrom(fileName);
    if (result != S_OK)
        return result;
    m_fileName = fileName;
    m_changed = false;
    return S_OK;
}

// Keeps:   the file is replaced as a whole or not at all; with remember it becomes the current
//          file and the link counts as unchanged.
// Differs: a failure sets the last error. No item list is written, because the machine has no shell
//          name space; the target stands in the link information alone, as 8-bit text (UTF-8) and
//          as UTF-16. Windows reads the UTF-16 text. Wine reads the 8-bit text in its own code
//          page, so there it is right for ASCII targets only.
// Refuses: saving without a name.
HRESULT ShellLink::Save(LPCWSTR fileName, BOOL remember)
{
    if (const auto fault = InjectedResult("IPersistFile::Save"))
        return *fault;
    const HRESULT result = WriteTo(fileName);
    if (result != S_OK || !remember)
        return result;
    m_fileName = fileName;
    m_changed = false;
    return S_OK;
}

// Keeps:   a copy of the name last loaded or saved, to be freed with CoTaskMemFree; S_FALSE when
//          there was none.
// Differs: without a current file the name is null.
HRESULT ShellLink::GetCurFile(LPWSTR* fileName)
{
    if (!fileName)
        return E_POINTER;
    *fileName = nullptr;
    if (const auto fault = InjectedResult("IPersistFile::GetCurFile"))
        return *fault;
    if (m_fileName.empty())
        return S_FALSE;
    const size_t count = m_fileName.size() + 1;
    *fileName = static_cast<LPWSTR>(std::malloc(count * sizeof(wchar_t)));
    if (!*fileName)
        return E_OUTOFMEMORY;
    std::copy_n(m_fileName.c_str(), count, *fileName);
    return S_OK;
}

HRESULT ShellLink::SetText(std::u16string& field, LPCWSTR text)
{
    if (!text)
        return E_INVALIDARG;
    field = Utf16FromWide(text);
    m_changed = true;
    return S_OK;
}

HRESULT ShellLink::WriteTo(LPCWSTR fileName) const
{
    std::string path;
    DWORD error = NativePath(fileName, path);
    if (error != ERROR_SUCCESS)
        return ResultOf(error);
    const std::optional<std::string> bytes = FormatLinkFile(m_content);
    if (!bytes)
        return ResultOf(ERROR_FILENAME_EXCED_RANGE);
    error = WriteWholeFile(path, *bytes);
    return error == ERROR_SUCCESS ? S_OK : ResultOf(error);
}

HRESULT ShellLink::ReadFrom(LPCWSTR fileName)
{
    std::string path;
    std::string bytes;
    DWORD error = NativePath(fileName, path);
    if (error == ERROR_SUCCESS)
        error = ReadWholeFile(path, bytes);
    if (error != ERROR_SUCCESS)
        return ResultOf(error);
    std::optional<LinkContent> content = ParseLinkFile(bytes);
    if (!content)
        return E_FAIL;
    m_content = std::move(*content);
    return S_OK;
}

} // namespace Pal
