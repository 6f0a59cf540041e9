// Calls that list the values and sub-keys of an open key.
#include <windows.h>

#include "Faults.h"
#include "WideText.h"
#include "registry/RegistrySession.h"
#include "registry/ValueOutput.h"

// Keeps:   values in the order of their creation; the length of the name counts characters, on
//          input with the closing zero and on output without it. ERROR_MORE_DATA with the type and
//          the size of the data if the name does not fit, and with the name, too, if the data does
//          not fit; ERROR_NO_MORE_ITEMS after the last value.
// Differs: text and names are returned as UTF-32.
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
    if (error == ERROR_SUCCESS)
        return Pal::GiveValue(value, type, data, dataSize);
    Pal::GiveValue(value, type, nullptr, dataSize);
    return error;
}

// Keeps:   sub-keys sorted by name without case; lengths and errors as RegEnumValueW.
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
