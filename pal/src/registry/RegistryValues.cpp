// Calls on a value of an open key.
#include <windows.h>

#include "Faults.h"
#include "WideText.h"
#include "registry/RegistrySession.h"
#include "registry/ValueData.h"
#include "registry/ValueOutput.h"

namespace Pal
{

namespace
{

constexpr size_t longestValueName = 16383;

bool IsKnownType(DWORD type)
{
    return IsTextType(type) || type == REG_NONE || type == REG_BINARY || type == REG_DWORD ||
           type == REG_QWORD;
}

LSTATUS CheckNewValue(const std::u16string& name, DWORD type, const BYTE* data, DWORD dataSize)
{
    if (!IsKnownType(type))
        return ERROR_NOT_SUPPORTED;
    if (name.size() > longestValueName || name.find_first_of(u"\r\n") != name.npos)
        return ERROR_INVALID_PARAMETER;
    const bool cutCharacter = IsTextType(type) && dataSize % sizeof(wchar_t) != 0;
    if (!data && dataSize)
        return ERROR_NOACCESS;
    return cutCharacter ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS;
}

} // namespace

} // namespace Pal

// Keeps:   stores the bytes as they are given, text with or without its closing zero; an existing
//          name keeps its case; ERROR_INVALID_PARAMETER for a name of more than 16383 characters,
//          ERROR_NOACCESS for null data with a size, ERROR_ACCESS_DENIED without KEY_SET_VALUE.
// Differs: a text is never extended by a zero that follows it. Invalid characters become U+FFFD.
// Refuses: types that winreg.h does not name, text that ends within a character, and names with CR
//          or LF, which the file format cannot hold.
LSTATUS RegSetValueExW(
    HKEY key, LPCWSTR valueName, DWORD reserved, DWORD type, const BYTE* data, DWORD dataSize)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    const std::u16string name = Pal::Utf16FromWide(valueName ? valueName : L"");
    const LSTATUS error = reserved ? LSTATUS{ERROR_INVALID_PARAMETER}
                                   : Pal::CheckNewValue(name, type, data, dataSize);
    if (error != ERROR_SUCCESS)
        return error;
    Pal::RegistrySession session(key, KEY_SET_VALUE, Pal::Access::Write);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    return session.SetValue({name, type, Pal::DataFromCaller(type, data, dataSize)});
}

// Keeps:   without a buffer the size alone; ERROR_MORE_DATA with the size and the type if the
//          buffer is too small; a text without its closing zero gets one if there is room. type and
//          dataSize may be one variable, which receives the size. A missing value is
//          ERROR_FILE_NOT_FOUND, and has size 0 if there is no buffer.
// Differs: text is returned as UTF-32, whichever way it was stored, and sizes count that.
LSTATUS RegQueryValueExW(
    HKEY key, LPCWSTR valueName, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD dataSize)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    if (reserved || (data && !dataSize))
        return ERROR_INVALID_PARAMETER;
    const Pal::RegistrySession session(key, KEY_QUERY_VALUE, Pal::Access::Read);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    const Pal::RegistryValue* value =
        session.Key().Value(Pal::Utf16FromWide(valueName ? valueName : L""));
    if (value)
        return Pal::GiveValue(*value, type, data, dataSize);
    if (dataSize && !data)
        *dataSize = 0;
    return ERROR_FILE_NOT_FOUND;
}

// Keeps:   ERROR_FILE_NOT_FOUND for a missing value; ERROR_ACCESS_DENIED without KEY_SET_VALUE.
LSTATUS RegDeleteValueW(HKEY key, LPCWSTR valueName)
{
    if (const auto fault = Pal::InjectedFault(__func__))
        return static_cast<LSTATUS>(*fault);
    Pal::RegistrySession session(key, KEY_SET_VALUE, Pal::Access::Write);
    if (session.Error() != ERROR_SUCCESS)
        return session.Error();
    const std::u16string name = Pal::Utf16FromWide(valueName ? valueName : L"");
    return session.Key().Value(name) ? session.RemoveValue(name) : ERROR_FILE_NOT_FOUND;
}
