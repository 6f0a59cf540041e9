// Calls that open, create, close and delete keys.
#include <windows.h>

#include "Faults.h"
#include "Machine.h"
#include "WideText.h"
#include "registry/RegistrySession.h"

namespace Pal
{

namespace
{

constexpr size_t longestKeyName = 255;
constexpr REGSAM changes = KEY_WRITE & ~KEY_READ; // setting values, creating sub-keys
constexpr REGSAM viewFlags = KEY_WOW64_32KEY | KEY_WOW64_64KEY;

LSTATUS CheckAccess(REGSAM desiredAccess)
{
    if ((desiredAccess & viewFlags) == viewFlags)
        return ERROR_INVALID_PARAMETER;
    return (desiredAccess & ~(viewFlags | KEY_ALL_ACCESS)) ? ERROR_NOT_SUPPORTED : ERROR_SUCCESS;
}

LSTATUS AppendName(std::u16string_view name, KeyPath& path)
{
    if (name.size() > longestKeyName || name.find_first_of(u"\r\n") != name.npos)
        return ERROR_INVALID_PARAMETER;
    if (!name.empty())
        path.emplace_back(name);
    return ERROR_SUCCESS;
}

// Appends the names of a sub-key's path. Empty names, as at the end of "a\b\", are skipped.
LSTATUS AppendSubKey(LPCWSTR subKey, KeyPath& path)
{
    const std::u16string text = Utf16FromWide(subKey ? subKey : L"");
    std::u16string_view rest = text;
    if (rest.substr(0, 1) == u"\\")
        return ERROR_BAD_PATHNAME;
    while (!rest.empty())
    {
        const size_t separator = rest.find(u'\\');
        const LSTATUS error = AppendName(rest.substr(0, separator), path);
        if (error != ERROR_SUCCESS)
            return error;
        rest.remove_prefix(separator == rest.npos ? rest.size() : separator + 1);
    }
    return ERROR_SUCCESS;
}

// In the 32-bit view HKEY_LOCAL_MACHINE\Software is the key WOW6432Node below it.
void ApplyView(RegistryRoot root, REGSAM view, KeyPath& path)
{
    constexpr std::u16string_view node = u"WOW6432Node";
    if (!(view & KEY_WOW64_32KEY) || root != RegistryRoot::LocalMachine || path.empty() ||
        FoldCase(path[0]) != FoldCase(u"Software"))
        return;
    if (path.size() == 1 || FoldCase(path[1]) != FoldCase(node))
        path.emplace(path.begin() + 1, node);
}

LSTATUS ResolvePath(const RegistrySession& session, LPCWSTR subKey, REGSAM view, KeyPath& path)
{
    path = session.Location().path;
    const LSTATUS error = AppendSubKey(subKey, path);
    ApplyView(session.Location().root, view, path);
    return error;
}

// Only an administrator may change HKEY_LOCAL_MACHINE.
bool IsDenied(const RegistrySession& session, REGSAM desiredAccess)
{
    return (desiredAccess & changes) != 0 &&
           session.Location().root == RegistryRoot::LocalMachine && !IsAdministrator();
}

HKEY MakeHandle(const RegistrySession& session, const KeyPath& path, REGSAM access)
{
    const KeyLocation& parent = session.Location();
    const auto key =
        std::make_shared<OpenKey>(KeyLocation{parent.store, parent.root, path}, access);
    key->Node(); // binds the handle to this key, not to a later one of the same name
    return static_cast<HKEY>(HandleTable::Instance().Add(key));
}

LSTATUS OpenExisting(HKEY key, LPCWSTR subKey, REGSAM desiredAccess, PHKEY result)
{
    const RegistrySession session(key, 0, Access::Read);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    KeyPath path;
    const LSTATUS error = ResolvePath(session, subKey, desiredAccess, path);
    if (error != ERROR_SUCCESS)
        return error;
    if (!FindKey(session.Root(), path))
        return ERROR_FILE_NOT_FOUND;
    if (IsDenied(session, desiredAccess))
        return ERROR_ACCESS_DENIED;
    *result = MakeHandle(session, path, desiredAccess & ~viewFlags);
    return ERROR_SUCCESS;
}

LSTATUS OpenOrMake(
    HKEY key, LPCWSTR subKey, REGSAM desiredAccess, PHKEY result, LPDWORD disposition)
{
    RegistrySession session(key, 0, Access::Write);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    KeyPath path;
    LSTATUS error = ResolvePath(session, subKey, desiredAccess, path);
    if (error != ERROR_SUCCESS)
        return error;
    const bool exists = FindKey(session.Root(), path) != nullptr;
    if (IsDenied(session, exists ? desiredAccess : changes))
        return ERROR_ACCESS_DENIED;
    if (!exists)
        error = session.MakeKeyAt(path);
    if (error != ERROR_SUCCESS)
        return error;
    *result = MakeHandle(session, path, desiredAccess & ~viewFlags);
    if (disposition)
        *disposition = exists ? REG_OPENED_EXISTING_KEY : REG_CREATED_NEW_KEY;
    return ERROR_SUCCESS;
}

LSTATUS DeleteKey(HKEY key, LPCWSTR subKey)
{
    if (!subKey)
        return ERROR_INVALID_PARAMETER;
    RegistrySession session(key, 0, Access::Write);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    KeyPath path;
    const LSTATUS error = ResolvePath(session, subKey, 0, path);
    if (error != ERROR_SUCCESS)
        return error;
    const std::shared_ptr<KeyNode> found = FindKey(session.Root(), path);
    if (!found)
        return ERROR_FILE_NOT_FOUND;
    if (IsDenied(session, changes))
        return ERROR_ACCESS_DENIED;
    if (path.empty() || !found->SubKeys().empty())
        return ERROR_ACCESS_DENIED;
    return session.RemoveKeyAt(path);
}

} // namespace

} // namespace Pal

// Keeps:   creates every missing key of the path; an empty subKey opens the key itself; a name of
//          more than 255 characters is ERROR_INVALID_PARAMETER and a leading backslash
//          ERROR_BAD_PATHNAME. The handle's own rights do not limit what is created below it. In
//          the 32-bit view HKEY_LOCAL_MACHINE\Software is HKEY_LOCAL_MACHINE\Software\WOW6432Node.
// Differs: every right that is asked for is granted, but for changes of HKEY_LOCAL_MACHINE without
//          administrator rights ("rights" in machine.ini): ERROR_ACCESS_DENIED. All of
//          HKEY_LOCAL_MACHINE\Software has two views. The number of levels is not limited.
// Refuses: a class, every option but REG_OPTION_NON_VOLATILE, security attributes, rights that
//          winreg.h does not name, and names with CR or LF, which the file format cannot hold.
LSTATUS RegCreateKeyExW(HKEY key, LPCWSTR subKey, DWORD reserved, LPWSTR className, DWORD options,
    REGSAM desiredAccess, const LPSECURITY_ATTRIBUTES securityAttributes, PHKEY result,
    LPDWORD disposition)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (!subKey || reserved || !result)
        return ERROR_INVALID_PARAMETER;
    if (className || options != REG_OPTION_NON_VOLATILE || securityAttributes)
        return ERROR_NOT_SUPPORTED;
    const LSTATUS error = Pal::CheckAccess(desiredAccess);
    if (error != ERROR_SUCCESS)
        return error;
    return Pal::OpenOrMake(key, subKey, desiredAccess, result, disposition);
}

// Keeps:   ERROR_FILE_NOT_FOUND for a missing key; a null subKey opens the key itself; a failure
//          sets the result to null; views as in RegCreateKeyExW.
// Differs: as RegCreateKeyExW; opening a predefined key itself gives a handle that must be closed.
// Refuses: every option, and rights that winreg.h does not name.
LSTATUS RegOpenKeyExW(HKEY key, LPCWSTR subKey, DWORD options, REGSAM desiredAccess, PHKEY result)
{
    if (result)
        *result = nullptr;
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (!result)
        return ERROR_INVALID_PARAMETER;
    if (options)
        return ERROR_NOT_SUPPORTED;
    const LSTATUS error = Pal::CheckAccess(desiredAccess);
    if (error != ERROR_SUCCESS)
        return error;
    return Pal::OpenExisting(key, subKey, desiredAccess, result);
}

// Keeps:   ERROR_INVALID_HANDLE for a value that is no open key; closing a predefined key does
//          nothing.
LSTATUS RegCloseKey(HKEY key)
{
    const auto fault = Pal::InjectedFault(__func__);
    const bool closed =
        Pal::IsPredefined(key) || Pal::HandleTable::Instance().Take<Pal::OpenKey>(key) != nullptr;
    if (fault)
        return static_cast<LSTATUS>(*fault);
    return closed ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

// For tests that need registry roots of their own in one process, on both systems.
// Keeps:   redirects a predefined key, for this process only, to the key of a handle, which may be
//          closed afterwards; a null replacement removes the redirection.
// Differs: the redirection refers to the machine on which the handle was opened.
// Refuses: a predefined key as replacement, with ERROR_INVALID_HANDLE.
LSTATUS RegOverridePredefKey(HKEY key, HKEY replacement)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (!Pal::IsPredefined(key) || Pal::IsPredefined(replacement))
        return ERROR_INVALID_HANDLE;
    const std::lock_guard lock(Pal::RegistryMutex());
    const auto target = replacement ? Pal::FindOpenKey(replacement) : nullptr;
    if (replacement && !target)
        return ERROR_INVALID_HANDLE;
    Pal::OverridePredefined(
        key, target ? std::make_shared<Pal::OpenKey>(target->Location(), KEY_ALL_ACCESS) : nullptr);
    return ERROR_SUCCESS;
}

// Keeps:   the handle's rights are not checked; an empty subKey deletes the key itself; a key with
//          sub-keys and a root are ERROR_ACCESS_DENIED; after it, open handles of the key return
//          ERROR_KEY_DELETED.
LSTATUS RegDeleteKeyW(HKEY key, LPCWSTR subKey)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    return Pal::DeleteKey(key, subKey);
}
