// Values of every kind, written by one system and read back by the other.
#pragma once

#include "support/RegistryCalls.h"

#include <string>
#include <vector>

constexpr wchar_t samplesKey[] = L"Software\\Vorlan Samples";

struct RegistrySample
{
    std::wstring subKey;
    std::wstring name;
    DWORD type;
    std::wstring text;       // of the types that are text, with its closing zeros
    std::vector<BYTE> bytes; // of all other types
};

inline std::vector<BYTE> CountingBytes(int count)
{
    std::vector<BYTE> bytes;
    for (int value = 0; value < count; ++value)
        bytes.push_back(static_cast<BYTE>(value));
    return bytes;
}

inline std::vector<RegistrySample> RegistrySamples()
{
    using namespace std::string_literals;
    const std::wstring foreign = L"\u97f3\u697d \u00fc";
    return {
        {L"Texts", L"", REG_SZ, L"of the key itself\0"s, {}},
        {L"Texts", L"empty", REG_SZ, L"\0"s, {}},
        {L"Texts", L"plain", REG_SZ, L"C:\\folder with blanks\\file.exe\0"s, {}},
        {L"Texts", L"na\"me\\with=marks", REG_SZ, L"\"quoted\" \\ ; [x] @ hex:00\0"s, {}},
        {L"Texts", foreign, REG_SZ, foreign + L" \U0001F3B5\0"s, {}},
        {L"Texts", L"lines", REG_SZ, L"one\r\ntwo\0"s, {}},
        {L"Texts", L"expanded", REG_EXPAND_SZ, L"%PATH%\\\u00e9\0"s, {}},
        {L"Texts", L"list", REG_MULTI_SZ, L"one\0two \u65e5\0\0"s, {}},
        {L"Numbers", L"small", REG_DWORD, {}, {0xFE, 0xCA, 0, 0x80}},
        {L"Numbers", L"large", REG_QWORD, {}, {8, 7, 6, 5, 4, 3, 2, 0xFF}},
        {L"Bytes", L"none", REG_NONE, {}, {1, 2, 3}},
        {L"Bytes", L"nothing", REG_BINARY, {}, {}},
        {L"Bytes", L"many", REG_BINARY, {}, CountingBytes(256)},
        {foreign + L" key\\deep er", L"value", REG_DWORD, {}, {1, 0, 0, 0}},
    };
}
