#include "com/ShellLink.h"

#include "LastError.h"
#include "WholeFile.h"
#include "WideText.h"
#include "com/ComFaults.h"

#include <algorithm>

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

HRESULT SetText(std::u16string& field, LPCWSTR text)
{
    if (!text)
        return E_INVALIDARG;
    field = Utf16FromWide(text);
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
    return ++references;
}

ULONG ShellLink::Release()
{
    const ULONG left = --references;
    if (left == 0)
        delete this;
    return left;
}

// Keeps:   S_FALSE and an empty text for a link without a target; a text that does not fit is cut.
// Differs: a path of more than MAX_PATH characters is returned whole.
// Refuses: file data, and every flag but SLGP_RAWPATH, which changes nothing.
HRESULT ShellLink::GetPath(LPWSTR path, int size, WIN32_FIND_DATAW* data, DWORD flags)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetPath"))
        return *fault;
    if (data || (flags & ~DWORD{SLGP_RAWPATH}))
        return E_INVALIDARG;
    const HRESULT result = CopyText(content.target, path, size);
    return result == S_OK && content.target.empty() ? S_FALSE : result;
}

// Differs: any text is stored unchanged: quotes are kept, and a path is not made absolute.
// Refuses: a null text.
HRESULT ShellLink::SetPath(LPCWSTR path)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetPath"))
        return *fault;
    return SetText(content.target, path);
}

// Keeps:   a text that does not fit is cut.
HRESULT ShellLink::GetWorkingDirectory(LPWSTR folder, int size)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetWorkingDirectory"))
        return *fault;
    return CopyText(content.workingFolder, folder, size);
}

// Keeps:   any text is stored unchanged.
// Refuses: a null text.
HRESULT ShellLink::SetWorkingDirectory(LPCWSTR folder)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetWorkingDirectory"))
        return *fault;
    return SetText(content.workingFolder, folder);
}

// Keeps:   a text that does not fit is cut.
HRESULT ShellLink::GetArguments(LPWSTR arguments, int size)
{
    if (const auto fault = InjectedResult("IShellLinkW::GetArguments"))
        return *fault;
    return CopyText(content.arguments, arguments, size);
}

// Keeps:   any text is stored unchanged.
// Refuses: a null text.
HRESULT ShellLink::SetArguments(LPCWSTR arguments)
{
    if (const auto fault = InjectedResult("IShellLinkW::SetArguments"))
        return *fault;
    return SetText(content.arguments, arguments);
}

// Keeps:   replaces the link's content, or changes nothing on failure: E_FAIL for a file that is no
//          link, ERROR_FILE_NOT_FOUND as a result for a missing one.
// Differs: a failure sets the last error. The share modes of open handles are not checked. The
//          target is read from the link information; a link that has it in the item list only, or
//          on a network share, is loaded without a target.
// Refuses: every mode but STGM_READ.
HRESULT ShellLink::Load(LPCWSTR fileName, DWORD mode)
{
    if (const auto fault = InjectedResult("IPersistFile::Load"))
        return *fault;
    if (mode != STGM_READ)
        return E_INVALIDARG;
    return ReadFrom(fileName);
}

// Keeps:   replaces the file as a whole, or changes nothing.
// Differs: a failure sets the last error. The file is never remembered, and the share modes of open
//          handles are not checked. No item list is written, because the machine has no shell
//          namespace; the target is in the link information only, as 8-bit text (UTF-8) and as
//          UTF-16. Windows reads the UTF-16 text. Wine reads the 8-bit text in its own code page,
//          so there only ASCII targets are right.
// Refuses: a null or empty name.
HRESULT ShellLink::Save(LPCWSTR fileName, BOOL)
{
    if (const auto fault = InjectedResult("IPersistFile::Save"))
        return *fault;
    return WriteTo(fileName);
}

HRESULT ShellLink::WriteTo(LPCWSTR fileName) const
{
    std::string path;
    DWORD error = NativePath(fileName, path);
    if (error != ERROR_SUCCESS)
        return ResultOf(error);
    const std::optional<std::string> bytes = FormatLinkFile(content);
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
    std::optional<LinkContent> loaded = ParseLinkFile(bytes);
    if (!loaded)
        return E_FAIL;
    content = std::move(*loaded);
    return S_OK;
}

} // namespace Pal
