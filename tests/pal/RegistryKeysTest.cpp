#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

namespace
{

using Names = std::vector<std::wstring>;

class RegistryKeysTest : public PalMachine
{
};

TEST_F(RegistryKeysTest, CreatingMakesEveryKeyOnTheWayAndTellsWhetherItWasThere)
{
    HKEY key = nullptr;
    DWORD disposition = 0;
    ASSERT_EQ(RegCreateKeyExW(Key(), L"One\\Two\\Three\\", 0, nullptr, REG_OPTION_NON_VOLATILE,
                  KEY_READ, nullptr, &key, &disposition),
        ERROR_SUCCESS);
    EXPECT_EQ(disposition, DWORD{REG_CREATED_NEW_KEY});
    RegCloseKey(key);

    ASSERT_EQ(RegCreateKeyExW(Key(), L"ONE\\two", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ,
                  nullptr, &key, &disposition),
        ERROR_SUCCESS);
    EXPECT_EQ(disposition, DWORD{REG_OPENED_EXISTING_KEY});
    EXPECT_EQ(SubKeyNames(key), Names{L"Three"});
    EXPECT_EQ(SubKeyNames(Key()), Names{L"One"});
    RegCloseKey(key);
}

TEST_F(RegistryKeysTest, OpeningFindsKeysWithoutRegardToCaseAndNeverMakesThem)
{
    RegCloseKey(MakeKey(Key(), L"M\u00e4rz"));
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(Key(), L"m\u00c4RZ", 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(RegOpenKeyExW(Key(), L"Missing", 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(SubKeyNames(Key()), Names{L"M\u00e4rz"});
}

TEST_F(RegistryKeysTest, OpeningNothingOpensTheKeyItself)
{
    SetText(Key(), L"name", L"own");
    HKEY same = nullptr;
    ASSERT_EQ(RegOpenKeyExW(Key(), nullptr, 0, KEY_READ, &same), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(same, L"name"), L"own");
    RegCloseKey(same);
    ASSERT_EQ(RegOpenKeyExW(Key(), L"", 0, KEY_READ, &same), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(same, L"name"), L"own");
    RegCloseKey(same);
}

TEST_F(RegistryKeysTest, SubKeysAreListedSortedAndKeepTheirCase)
{
    for (const wchar_t* name : {L"beta", L"Alpha", L"GAMMA", L"alpha2"})
        RegCloseKey(MakeKey(Key(), name));
    EXPECT_EQ(SubKeyNames(Key()), (Names{L"Alpha", L"alpha2", L"beta", L"GAMMA"}));
}

TEST_F(RegistryKeysTest, ListingASubKeyCountsCharactersWithoutTheClosingZero)
{
    RegCloseKey(MakeKey(Key(), L"four"));
    wchar_t name[8];
    DWORD length = 4;
    EXPECT_EQ(RegEnumKeyExW(Key(), 0, name, &length, nullptr, nullptr, nullptr, nullptr),
        ERROR_MORE_DATA);
    length = 5;
    EXPECT_EQ(
        RegEnumKeyExW(Key(), 0, name, &length, nullptr, nullptr, nullptr, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(length, 4u);
    EXPECT_STREQ(name, L"four");
    EXPECT_EQ(RegEnumKeyExW(Key(), 1, name, &length, nullptr, nullptr, nullptr, nullptr),
        ERROR_NO_MORE_ITEMS);
}

TEST_F(RegistryKeysTest, OnlyAKeyWithoutSubKeysIsDeleted)
{
    const HKEY parent = MakeKey(Key(), L"Parent");
    RegCloseKey(MakeKey(parent, L"Child"));
    SetText(parent, L"value", L"does not hold it back");
    EXPECT_EQ(RegDeleteKeyW(Key(), L"Parent"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteKeyW(parent, L"Child"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyW(Key(), L"PARENT"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyW(Key(), L"Parent"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(SubKeyNames(Key()), Names{});
    RegCloseKey(parent);
}

TEST_F(RegistryKeysTest, TheHandleOfADeletedKeySaysSo)
{
    const HKEY key = MakeKey(Key(), L"Gone");
    SetText(key, L"value", L"text");
    ASSERT_EQ(RegDeleteKeyW(Key(), L"Gone"), ERROR_SUCCESS);
    RegCloseKey(MakeKey(Key(), L"Gone"));
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExW(key, L"value", nullptr, nullptr, nullptr, &size), ERROR_KEY_DELETED);
    EXPECT_EQ(SetText(key, L"value", L"text"), ERROR_KEY_DELETED);
    EXPECT_EQ(RegDeleteValueW(key, L"value"), ERROR_KEY_DELETED);
    HKEY child = nullptr;
    EXPECT_EQ(RegOpenKeyExW(key, L"Child", 0, KEY_READ, &child), ERROR_KEY_DELETED);
    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
}

TEST_F(RegistryKeysTest, AHandleHasOnlyTheRightsItWasOpenedWith)
{
    SetText(Key(), L"value", L"text");
    const HKEY reader = MakeKey(Key(), L"", KEY_READ);
    const HKEY writer = MakeKey(Key(), L"", KEY_SET_VALUE);
    wchar_t name[8];
    DWORD length = 8;
    DWORD size = 0;
    EXPECT_EQ(TextOf(reader, L"value"), L"text");
    EXPECT_EQ(SetText(reader, L"value", L"other"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteValueW(reader, L"value"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(SetText(writer, L"value", L"other"), ERROR_SUCCESS);
    EXPECT_EQ(
        RegQueryValueExW(writer, L"value", nullptr, nullptr, nullptr, &size), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegEnumValueW(writer, 0, name, &length, nullptr, nullptr, nullptr, nullptr),
        ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegEnumKeyExW(writer, 0, name, &length, nullptr, nullptr, nullptr, nullptr),
        ERROR_ACCESS_DENIED);
    RegCloseKey(reader);
    RegCloseKey(writer);
}

TEST_F(RegistryKeysTest, WhatIsNoOpenKeyIsRefused)
{
    const HKEY key = MakeKey(Key(), L"Closed");
    ASSERT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    HKEY opened = nullptr;
    EXPECT_EQ(RegOpenKeyExW(key, L"Sub", 0, KEY_READ, &opened), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegCloseKey(nullptr), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegDeleteKeyW(Key(), nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegCloseKey(HKEY_CURRENT_USER), ERROR_SUCCESS);
}

TEST_F(RegistryKeysTest, The32BitViewOfTheMachinesSoftwareIsAKeyOfItsOwn)
{
    // A key that replaces the root has one view only.
    UndoRedirectionOfMachine();
    const std::wstring path = keyPath;
    const HKEY wide = MakeKey(HKEY_LOCAL_MACHINE, path, KEY_ALL_ACCESS | KEY_WOW64_64KEY);
    const HKEY narrow = MakeKey(HKEY_LOCAL_MACHINE, path, KEY_ALL_ACCESS | KEY_WOW64_32KEY);
    SetText(wide, L"view", L"64");
    SetText(narrow, L"view", L"32");
    EXPECT_EQ(TextOf(wide, L"view"), L"64");

    constexpr wchar_t narrowPath[] = L"Software\\WOW6432Node\\VorlanPalTests";
    const HKEY direct = MakeKey(HKEY_LOCAL_MACHINE, narrowPath);
    EXPECT_EQ(TextOf(direct, L"view"), L"32");
    for (const HKEY key : {wide, narrow, direct})
        RegCloseKey(key);
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, narrowPath), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, keyPath), ERROR_SUCCESS);
}

TEST_F(RegistryKeysTest, TheUsersSoftwareIsTheSameInBothViews)
{
    SetText(Key(), L"view", L"both");
    const HKEY narrow = MakeKey(HKEY_CURRENT_USER, keyPath, KEY_READ | KEY_WOW64_32KEY);
    EXPECT_EQ(TextOf(narrow, L"view"), L"both");
    RegCloseKey(narrow);
}

} // namespace
