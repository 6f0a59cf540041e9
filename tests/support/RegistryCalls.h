// Short forms of registry calls for tests, on both systems.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

inline HKEY MakeKey(HKEY parent, const std::wstring& path, REGSAM access = KEY_ALL_ACCESS)
{
    HKEY key = nullptr;
    RegCreateKeyExW(
        parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &key, nullptr);
    return key;
}

inline LSTATUS SetBytes(
    HKEY key, const std::wstring& name, DWORD type, const std::vector<BYTE>& data)
{
    return RegSetValueExW(key, name.c_str(), 0, type, data.data(), static_cast<DWORD>(data.size()));
}

// Without a closing zero of its own: put it into the text where one is wanted.
inline LSTATUS SetWide(HKEY key, const std::wstring& name, DWORD type, const std::wstring& text)
{
    return RegSetValueExW(key, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(text.data()),
        static_cast<DWORD>(text.size() * sizeof(wchar_t)));
}

inline LSTATUS SetText(HKEY key, const std::wstring& name, const std::wstring& text)
{
    return SetWide(key, name, REG_SZ, text + L'\0');
}

struct ValueSeen
{
    DWORD type;
    std::vector<BYTE> data;

    std::wstring Text() const
    {
        return std::wstring(
            reinterpret_cast<const wchar_t*>(data.data()), data.size() / sizeof(wchar_t));
    }
};

inline std::optional<ValueSeen> SeeValue(HKEY key, const std::wstring& name)
{
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    ValueSeen seen{REG_NONE, std::vector<BYTE>(size)};
    if (RegQueryValueExW(key, name.c_str(), nullptr, &seen.type, seen.data.data(), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    return seen;
}

// The text without its closing zero; "(none)" where there is no such value.
inline std::wstring TextOf(HKEY key, const std::wstring& name)
{
    const std::optional<ValueSeen> seen = SeeValue(key, name);
    if (!seen)
        return L"(none)";
    const std::wstring text = seen->Text();
    return text.substr(0, text.find(L'\0'));
}

// The names that one of the two listing calls gives.
template <class Listing>
std::vector<std::wstring> NamesListed(HKEY key, Listing list)
{
    std::vector<std::wstring> names;
    std::vector<wchar_t> name(16384);
    DWORD length = 16384;
    for (DWORD index = 0; list(key, index, name.data(), &length, nullptr, nullptr, nullptr,
                              nullptr) == ERROR_SUCCESS;
         ++index, length = 16384)
        names.emplace_back(name.data(), length);
    return names;
}

inline std::vector<std::wstring> ValueNames(HKEY key)
{
    return NamesListed(key, RegEnumValueW);
}

inline std::vector<std::wstring> SubKeyNames(HKEY key)
{
    return NamesListed(key, RegEnumKeyExW);
}

// Deletes a key with all below it; a key that is not there is fine.
inline void DeleteTree(HKEY parent, const std::wstring& path)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return;
    for (const std::wstring& name : SubKeyNames(key))
        DeleteTree(key, name);
    RegCloseKey(key);
    EXPECT_EQ(RegDeleteKeyW(parent, path.c_str()), ERROR_SUCCESS);
}
