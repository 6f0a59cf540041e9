// Converts value data between callers and the disk: text changes its width, other data is
// unchanged.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace Pal
{

// Whether values of the type hold characters.
bool IsTextType(DWORD type);

// dataSize: in bytes, also for text.
std::string DataFromCaller(DWORD type, const BYTE* data, DWORD dataSize);
std::string DataForCaller(DWORD type, const std::string& data);

// Whether the data is one text with its closing zero and without line ends or other zeros; content
// is then the text without the closing zero.
bool IsPlainText(const std::string& data, std::u16string& content);

DWORD DwordOf(const std::string& data);

// Characters as UTF-16LE bytes, the order of the processors that this layer runs on.
std::string DiskBytes(std::u16string_view text);

// UTF-16LE bytes as characters; an odd byte at the end is dropped.
std::u16string CharactersOf(std::string_view diskBytes);

} // namespace Pal
