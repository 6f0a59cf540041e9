// Calls that list the values and sub-keys of an open key.
#include <windows.h>

#include "Faults.h"
#include "WideText.h"
#include "registry/RegistrySession.h"
#include "registry/ValueOutput.h"

// Keeps:   values in the order in which they were made; the name's length counts characters, with
//          the closing zero on the way in and without it on the way out; ERROR_MORE_DATA when name
//          or data do not fit, ERROR_NO_MORE_ITEMS past the last value.
// Differs: text and names come as UTF-32. A name that does not fit leaves its buffer and length
//          alone.
LSTATUS RegEnumValueW(HKEY key, DWORD index, LPWSTR valueName, LPDWORD valueNameLength,
    LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD dataSize)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (!valueName || !valueNameLength || reserved || (data && !dataSize))
        return ERROR_INVALID_PARAMETER;
    const Pal::RegistrySession session(key, KEY_QUERY_VALUE, Pal::Access::Read);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    if (index >= session.Key().AllValues().size())
        return ERROR_NO_MORE_ITEMS;
    const Pal::RegistryValue& value = session.Key().ValueAt(index);
    const LSTATUS error = Pal::GiveName(value.name, valueName, valueNameLength);
    return error == ERROR_SUCCESS ? Pal::GiveValue(value, type, data, dataSize) : error;
}

// Keeps:   sub-keys sorted by name without regard to case; lengths and errors as RegEnumValueW.
// Differs: as RegEnumValueW.
// Refuses: class and time of the last change.
LSTATUS RegEnumKeyExW(HKEY key, DWORD index, LPWSTR name, LPDWORD nameLength, LPDWORD reserved,
    LPWSTR className, LPDWORD classLength, PFILETIME lastWriteTime)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (!name || !nameLength || reserved)
        return ERROR_INVALID_PARAMETER;
    if (className || classLength || lastWriteTime)
        return ERROR_NOT_SUPPORTED;
    const Pal::RegistrySession session(key, KEY_ENUMERATE_SUB_KEYS, Pal::Access::Read);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    if (index >= session.Key().SubKeys().size())
        return ERROR_NO_MORE_ITEMS;
    return Pal::GiveName(session.Key().SubKeyAt(index).Name(), name, nameLength);
}
