#include "support/PalMachine.h"
#include "support/RegistrySamples.h"

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
    for (const RegistrySample& sample : RegistrySamples())
    {
        const bool isText = !sample.text.empty();
        ASSERT_EQ(isText ? SetWide(Key(), sample.name, sample.type, sample.text)
                         : SetBytes(Key(), sample.name, sample.type, sample.bytes),
            ERROR_SUCCESS);
        const auto seen = SeeValue(Key(), sample.name);
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, sample.type);
        EXPECT_EQ(isText ? seen->Text() : sample.text, sample.text);
        EXPECT_EQ(isText ? sample.bytes : seen->data, sample.bytes);
    }
}

TEST_F(RegistryValuesTest, NamesIgnoreCaseAndKeepTheOneTheyWereMadeWith)
{
    SetText(Key(), L"InstallDir", L"first");
    SetText(Key(), L"INSTALLDIR", L"second");
    EXPECT_EQ(ValueNames(Key()), Names{L"InstallDir"});
    EXPECT_EQ(TextOf(Key(), L"installdir"), L"second");
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
