#include "support/ShellLinks.h"
#include "support/PalMachine.h"

namespace
{

class ShellLinksTest : public PalMachine
{
protected:
    std::wstring Target(const std::wstring& name) const { return WithBackslashes(PathOf(name)); }

    // A target that is there: one that is missing is taken with S_FALSE by some systems.
    std::wstring MakeTarget(const std::wstring& name) const
    {
        CloseHandle(CreateFileW(PathOf(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
            FILE_ATTRIBUTE_NORMAL, nullptr));
        return Target(name);
    }

    const ComThread comThread;
};

TEST_F(ShellLinksTest, WhatWasSavedIsLoadedByAFreshLink)
{
    const std::wstring longText = L"\"--list=" + std::wstring(900, L'x') + L"\" /S";
    const struct
    {
        std::wstring name;
        std::wstring arguments;
    } cases[] = {
        {L"quill.exe", L""},
        {L"two words.exe", L"\"one\" \"two three\""},
        {L"\u00e4.exe", L"\u0434\u0430\u043d\u043d\u044b\u0435 \u6df1\u3044"},
        {L"long.exe", longText},
    };
    for (const auto& [name, arguments] : cases)
    {
        TestLink saved;
        EXPECT_EQ(saved.Link().SetPath(MakeTarget(name).c_str()), S_OK);
        EXPECT_EQ(saved.Link().SetWorkingDirectory(Target(L"work").c_str()), S_OK);
        EXPECT_EQ(saved.Link().SetArguments(arguments.c_str()), S_OK);
        ASSERT_EQ(saved.Save(PathOf(name + L".lnk")), S_OK);

        TestLink loaded;
        ASSERT_EQ(loaded.Load(PathOf(name + L".lnk")), S_OK);
        EXPECT_EQ(loaded.Path(), Target(name));
        EXPECT_EQ(loaded.WorkingDirectory(), Target(L"work"));
        EXPECT_EQ(loaded.Arguments(), arguments);
    }
}

TEST_F(ShellLinksTest, SavingReplacesTheFormerLink)
{
    TestLink link;
    link.Link().SetPath(Target(L"first.exe").c_str());
    link.Link().SetArguments(L"old");
    ASSERT_EQ(link.Save(PathOf(L"a.lnk")), S_OK);
    link.Link().SetPath(Target(L"second.exe").c_str());
    link.Link().SetArguments(L"");
    ASSERT_EQ(link.Save(PathOf(L"a.lnk")), S_OK);
    TestLink loaded;
    loaded.Link().SetArguments(L"gone after loading");
    ASSERT_EQ(loaded.Load(PathOf(L"a.lnk")), S_OK);
    EXPECT_EQ(loaded.Path(), Target(L"second.exe"));
    EXPECT_EQ(loaded.Arguments(), L"");
}

} // namespace
