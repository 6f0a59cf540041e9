// Calls that list the values and sub-keys of an open key.
#include <windows.h>

#include "Faults.h"
#include "WideText.h"
#include "registry/RegistrySession.h"
#include "registry/ValueData.h"
#include "registry/ValueOutput.h"

#include <algorithm>

namespace Pal
{

namespace
{

DWORD CharacterCount(std::u16string_view name)
{
    return static_cast<DWORD>(WideFromUtf16(name).size());
}

void Give(LPDWORD target, size_t number)
{
    if (target)
        *target = static_cast<DWORD>(number);
}

void Raise(DWORD& most, size_t number)
{
    most = std::max(most, static_cast<DWORD>(number));
}

} // namespace

} // namespace Pal

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

// Keeps:   counts, and the longest name and data, names in characters without the closing zero.
// Refuses: class, security descriptor and time of the last change.
LSTATUS RegQueryInfoKeyW(HKEY key, LPWSTR className, LPDWORD classLength, LPDWORD reserved,
    LPDWORD subKeyCount, LPDWORD longestSubKey, LPDWORD longestClass, LPDWORD valueCount,
    LPDWORD longestValueName, LPDWORD longestValueData, LPDWORD securityDescriptorSize,
    PFILETIME lastWriteTime)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (reserved)
        return ERROR_INVALID_PARAMETER;
    if (className || classLength || longestClass || securityDescriptorSize || lastWriteTime)
        return ERROR_NOT_SUPPORTED;
    const Pal::RegistrySession session(key, KEY_QUERY_VALUE, Pal::Access::Read);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    DWORD subKeyLength = 0;
    for (const auto& [folded, child] : session.Key().SubKeys())
        Pal::Raise(subKeyLength, Pal::CharacterCount(child->Name()));
    DWORD nameLength = 0;
    DWORD dataLength = 0;
    for (const Pal::RegistryValue& value : session.Key().AllValues())
    {
        Pal::Raise(nameLength, Pal::CharacterCount(value.name));
        Pal::Raise(dataLength, Pal::DataForCaller(value.type, value.data).size());
    }
    Pal::Give(subKeyCount, session.Key().SubKeys().size());
    Pal::Give(longestSubKey, subKeyLength);
    Pal::Give(valueCount, session.Key().AllValues().size());
    Pal::Give(longestValueName, nameLength);
    Pal::Give(longestValueData, dataLength);
    return ERROR_SUCCESS;
}
