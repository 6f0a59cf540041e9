#include "registry/ValueData.h"

#include "WideText.h"

#include <algorithm>

namespace Pal
{

bool IsTextType(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

std::string DataFromCaller(DWORD type, const BYTE* data, DWORD dataSize)
{
    if (!IsTextType(type))
        return std::string(reinterpret_cast<const char*>(data), dataSize);
    std::wstring text(dataSize / sizeof(wchar_t), L'\0');
    std::copy_n(data, text.size() * sizeof(wchar_t), reinterpret_cast<BYTE*>(text.data()));
    return DiskBytes(Utf16FromWide(text));
}

std::string DataForCaller(DWORD type, const std::string& data)
{
    if (!IsTextType(type))
        return data;
    const std::wstring text = WideFromUtf16(CharactersOf(data));
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

bool IsPlainText(const std::string& data, std::u16string& content)
{
    if (data.size() % sizeof(char16_t) != 0)
        return false;
    content = CharactersOf(data);
    const size_t special = content.find_first_of(std::u16string_view(u"\0\r\n", 3));
    if (special == std::u16string::npos || special + 1 != content.size() || content[special])
        return false;
    content.pop_back();
    return true;
}

DWORD DwordOf(const std::string& data)
{
    DWORD number = 0;
    for (size_t i = sizeof(DWORD); i-- > 0;)
        number = (number << 8) | static_cast<BYTE>(data[i]);
    return number;
}

std::string DiskBytes(std::u16string_view text)
{
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
}

std::u16string CharactersOf(std::string_view diskBytes)
{
    std::u16string text(diskBytes.size() / sizeof(char16_t), u'\0');
    for (size_t i = 0; i < text.size(); ++i)
    {
        const auto low = static_cast<BYTE>(diskBytes[2 * i]);
        const auto high = static_cast<BYTE>(diskBytes[2 * i + 1]);
        text[i] = static_cast<char16_t>(low | (high << 8));
    }
    return text;
}

} // namespace Pal
