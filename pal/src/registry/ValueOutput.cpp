#include "registry/ValueOutput.h"

#include "WideText.h"
#include "registry/ValueData.h"

#include <algorithm>
#include <cstring>

namespace Pal
{

namespace
{

// Adds the closing zero to a text that was stored without one, if there is room.
void CloseText(const std::string& bytes, BYTE* data, DWORD room)
{
    constexpr size_t width = sizeof(wchar_t);
    const std::string zero(width, '\0');
    const bool closed =
        bytes.size() >= width && bytes.compare(bytes.size() - width, width, zero) == 0;
    if (!closed && room >= bytes.size() + width)
        std::memset(data + bytes.size(), 0, width);
}

} // namespace

LSTATUS GiveValue(const RegistryValue& value, LPDWORD type, LPBYTE data, LPDWORD dataSize)
{
    const DWORD room = dataSize ? *dataSize : 0; // type and dataSize may be one variable
    if (type)
        *type = value.type;
    if (!dataSize)
        return ERROR_SUCCESS;
    const std::string bytes = DataForCaller(value.type, value.data);
    *dataSize = static_cast<DWORD>(bytes.size());
    if (!data)
        return ERROR_SUCCESS;
    if (room < bytes.size())
        return ERROR_MORE_DATA;
    std::copy(bytes.begin(), bytes.end(), data);
    if (IsTextType(value.type))
        CloseText(bytes, data, room);
    return ERROR_SUCCESS;
}

LSTATUS GiveName(std::u16string_view name, LPWSTR buffer, LPDWORD length)
{
    const std::wstring text = WideFromUtf16(name);
    if (*length <= text.size())
        return ERROR_MORE_DATA;
    std::copy_n(text.c_str(), text.size() + 1, buffer);
    *length = static_cast<DWORD>(text.size());
    return ERROR_SUCCESS;
}

} // namespace Pal
