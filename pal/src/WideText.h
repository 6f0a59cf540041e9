// Converts the wide text of callers to UTF-16 and to native paths, and back. No other file does.
//
// The wide text of a caller may hold UTF-16 code units, one per wchar_t, or UTF-32. This layer
// returns UTF-32.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace Pal
{

// Invalid characters become U+FFFD; an unpaired surrogate is kept.
std::u16string Utf16FromWide(std::wstring_view text);
std::wstring WideFromUtf16(std::u16string_view text);

// The name for system calls: UTF-8, with "/" for both separators. Returns ERROR_SUCCESS,
// ERROR_PATH_NOT_FOUND for a null or empty name, or ERROR_INVALID_NAME for an unpaired surrogate or
// an invalid character.
DWORD NativePath(LPCWSTR name, std::string& path);
DWORD NativePath(LPCSTR utf8Name, std::string& path);

} // namespace Pal
