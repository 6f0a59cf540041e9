#include "WideText.h"

#include <algorithm>

namespace Pal
{

namespace
{

constexpr char32_t lastCharacter = 0x10FFFF;
constexpr char16_t replacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

void AppendUtf16(std::u16string& text, char32_t character)
{
    if (character > lastCharacter)
    {
        text.push_back(replacement);
        return;
    }
    if (character < 0x10000)
    {
        text.push_back(static_cast<char16_t>(character));
        return;
    }
    const char32_t offset = character - 0x10000;
    text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
}

char ContinuationByte(char32_t character, unsigned shift)
{
    return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
}

void AppendUtf8(std::string& text, char32_t character)
{
    if (character < 0x80)
    {
        text += static_cast<char>(character);
    }
    else if (character < 0x800)
    {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += ContinuationByte(character, 0);
    }
    else if (character < 0x10000)
    {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += ContinuationByte(character, 6);
        text += ContinuationByte(character, 0);
    }
    else
    {
        text += static_cast<char>(0xF0 | (character >> 18));
        text += ContinuationByte(character, 12);
        text += ContinuationByte(character, 6);
        text += ContinuationByte(character, 0);
    }
}

bool IsWrongCharacter(wchar_t character)
{
    const auto value = static_cast<char32_t>(character);
    return value > lastCharacter || IsHighSurrogate(value) || IsLowSurrogate(value);
}

DWORD WithNativeSeparators(std::string name, std::string& path)
{
    std::replace(name.begin(), name.end(), '\\', '/');
    path = std::move(name);
    return ERROR_SUCCESS;
}

} // namespace

std::u16string Utf16FromWide(std::wstring_view text)
{
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t character : text)
        AppendUtf16(units, static_cast<char32_t>(character));
    return units;
}

std::wstring WideFromUtf16(std::u16string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i)
    {
        char32_t character = text[i];
        const bool pair =
            IsHighSurrogate(character) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
        if (pair)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00u);
        wide.push_back(static_cast<wchar_t>(character));
    }
    return wide;
}

DWORD NativePath(LPCWSTR name, std::string& path)
{
    if (!name || !*name)
        return ERROR_PATH_NOT_FOUND;
    const std::wstring_view given = name;
    const auto outsideUnicode = [](wchar_t c) { return static_cast<char32_t>(c) > lastCharacter; };
    const std::wstring text = WideFromUtf16(Utf16FromWide(given));
    if (std::any_of(given.begin(), given.end(), outsideUnicode) ||
        std::any_of(text.begin(), text.end(), IsWrongCharacter))
        return ERROR_INVALID_NAME;
    std::string utf8;
    for (const wchar_t character : text)
        AppendUtf8(utf8, static_cast<char32_t>(character));
    return WithNativeSeparators(std::move(utf8), path);
}

DWORD NativePath(LPCSTR utf8Name, std::string& path)
{
    if (!utf8Name || !*utf8Name)
        return ERROR_PATH_NOT_FOUND;
    return WithNativeSeparators(utf8Name, path);
}

} // namespace Pal
