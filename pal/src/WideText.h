// The one place where the wide characters of a caller become other text and back.
//
// A caller's wide text may hold UTF-16 code units, one per wchar_t, or true UTF-32. What this
// layer hands out is UTF-32.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace Pal
{

// What is no character becomes U+FFFD; an unpaired surrogate stays.
std::u16string Utf16FromWide(std::wstring_view text);
std::wstring WideFromUtf16(std::u16string_view text);

// The name under which the system knows a file: UTF-8, with "/" for either separator.
// Returns ERROR_SUCCESS, ERROR_PATH_NOT_FOUND for no name at all, or ERROR_INVALID_NAME for an
// unpaired surrogate or what is no character.
DWORD NativePath(LPCWSTR name, std::string& path);
DWORD NativePath(LPCSTR utf8Name, std::string& path);

} // namespace Pal
