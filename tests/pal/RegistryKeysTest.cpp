#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

namespace
{

using Names = std::vector<std::wstring>;

class RegistryKeysTest : public PalMachine
{
};

TEST_F(RegistryKeysTest, ARedirectedRootLeadsToTheKeyUntilItIsUndone)
{
    const HKEY target = MakeKey(Key(), L"Redirected");
    ASSERT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, target), ERROR_SUCCESS);
    RegCloseKey(MakeKey(HKEY_LOCAL_MACHINE, L"Software\\Product"));
    ASSERT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(SubKeyNames(target), (std::vector<std::wstring>{L"Software"}));
    RegCloseKey(target);
    HKEY missing = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Product", 0, KEY_READ, &missing),
        ERROR_FILE_NOT_FOUND);
}

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

TEST_F(RegistryKeysTest, SubKeysAreListedSortedAndKeepTheirCase)
{
    for (const wchar_t* name : {L"beta", L"Alpha", L"GAMMA", L"alpha2"})
        RegCloseKey(MakeKey(Key(), name));
    EXPECT_EQ(SubKeyNames(Key()), (Names{L"Alpha", L"alpha2", L"beta", L"GAMMA"}));
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

} // namespace
