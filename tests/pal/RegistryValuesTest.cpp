#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

#include <algorithm>
#include <cwchar>
#include <set>

namespace
{

using Names = std::vector<std::wstring>;
using Bytes = std::vector<BYTE>;

class RegistryValuesTest : public PalMachine
{
};

// The order in which values are listed is the system's own affair.
Names Sorted(Names names)
{
    std::sort(names.begin(), names.end());
    return names;
}

TEST_F(RegistryValuesTest, EveryTypeComesBackAsItWasStored)
{
    const std::vector<std::pair<DWORD, Bytes>> values = {
        {REG_NONE, {}},
        {REG_NONE, {1, 2, 3}},
        {REG_BINARY, Bytes(300, 0xA5)},
        {REG_DWORD, {0x78, 0x56, 0x34, 0x12}},
        {REG_QWORD, {1, 0, 0, 0, 0, 0, 0, 0x80}},
    };
    for (const auto& [type, data] : values)
    {
        ASSERT_EQ(SetBytes(Key(), L"value", type, data), ERROR_SUCCESS);
        const auto seen = SeeValue(Key(), L"VALUE");
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, type);
        EXPECT_EQ(seen->data, data);
    }
}

TEST_F(RegistryValuesTest, EveryTextTypeComesBackAsItWasStored)
{
    using namespace std::string_literals;
    const std::vector<std::pair<DWORD, std::wstring>> texts = {
        {REG_SZ, L"\0"s},
        {REG_SZ, L"plain\0"s},
        {REG_SZ, L"\"quoted\" C:\\back\\slash %PATH% ; [x]\0"s},
        {REG_SZ, L"two\r\nlines\0"s},
        {REG_SZ, L"a zero \0 inside\0"s},
        {REG_SZ, L"\u4e2d\u6587 \u00fc\0"s},
        {REG_EXPAND_SZ, L"%ProgramFiles%\\x\0"s},
        {REG_MULTI_SZ, L"one\0two\0\0"s},
        {REG_MULTI_SZ, L"\0"s},
    };
    for (const auto& [type, text] : texts)
    {
        ASSERT_EQ(SetWide(Key(), L"value", type, text), ERROR_SUCCESS);
        const auto seen = SeeValue(Key(), L"value");
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, type);
        EXPECT_EQ(seen->Text(), text);
    }
}

TEST_F(RegistryValuesTest, NamesIgnoreCaseAndKeepTheOneTheyWereMadeWith)
{
    SetText(Key(), L"InstallDir", L"first");
    SetText(Key(), L"INSTALLDIR", L"second");
    EXPECT_EQ(ValueNames(Key()), Names{L"InstallDir"});
    EXPECT_EQ(TextOf(Key(), L"installdir"), L"second");
}

TEST_F(RegistryValuesTest, TheDefaultValueHasAnEmptyNameOrNone)
{
    SetText(Key(), L"", L"default");
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExW(Key(), nullptr, nullptr, nullptr, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 8 * sizeof(wchar_t));
    EXPECT_EQ(ValueNames(Key()), Names{L""});
    EXPECT_EQ(RegDeleteValueW(Key(), nullptr), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteValueW(Key(), L""), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryValuesTest, ANameMayHoldWhatAKeyNameMayNot)
{
    const Names names = {L"back\\slash", L"\"quoted\"", L"[a]=b", L"@", L"; c", L"sl/ash"};
    for (const std::wstring& name : names)
        SetText(Key(), name, name);
    EXPECT_EQ(Sorted(ValueNames(Key())), Sorted(names));
    for (const std::wstring& name : names)
        EXPECT_EQ(TextOf(Key(), name), name);
}

TEST_F(RegistryValuesTest, ManyValuesInOneKeyAreAllThereAndCanAllGo)
{
    constexpr int count = 1000;
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(SetText(Key(), L"value" + std::to_wstring(i), L"text"), ERROR_SUCCESS);
    const Names names = ValueNames(Key());
    ASSERT_EQ(std::set<std::wstring>(names.begin(), names.end()).size(), size_t{count});
    for (const std::wstring& name : names)
        ASSERT_EQ(RegDeleteValueW(Key(), name.c_str()), ERROR_SUCCESS);
    EXPECT_EQ(ValueNames(Key()), Names{});
}

} // namespace
