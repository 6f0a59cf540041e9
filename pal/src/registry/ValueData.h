// Value data on its way between a caller and the disk: text changes its width, all else stays.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace Pal
{

// Whether values of the type hold characters.
bool IsTextType(DWORD type);

// dataSize counts bytes of wide characters for text.
std::string DataFromCaller(DWORD type, const BYTE* data, DWORD dataSize);
std::string DataForCaller(DWORD type, const std::string& data);

// Whether the data is one text with its closing zero and nothing that a line cannot hold; then
// content is that text without the zero.
bool IsPlainText(const std::string& data, std::u16string& content);

DWORD DwordOf(const std::string& data);

// UTF-16LE bytes as characters; an odd byte at the end is dropped.
std::u16string CharactersOf(std::string_view diskBytes);

} // namespace Pal
