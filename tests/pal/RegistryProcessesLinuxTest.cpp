#include "support/LinuxProcesses.h"
#include "support/RegistryFiles.h"

#include <csignal>

namespace
{

class RegistryProcessesLinuxTest : public RegistryFiles
{
};

// Writes values and keys of its own, and takes half of them away again.
int WriteMany(HKEY key, int writer)
{
    int wrong = 0;
    for (int i = 0; i < 200; ++i)
    {
        const std::wstring name = std::to_wstring(writer) + L"-" + std::to_wstring(i);
        wrong += SetText(key, name, L"text of " + name) != ERROR_SUCCESS;
        RegCloseKey(MakeKey(key, name));
        if (i % 2 != 0)
        {
            wrong += RegDeleteValueW(key, name.c_str()) != ERROR_SUCCESS;
            wrong += RegDeleteKeyW(key, name.c_str()) != ERROR_SUCCESS;
        }
    }
    return wrong;
}

TEST_F(RegistryProcessesLinuxTest, SeveralWritersLoseNothing)
{
    constexpr int writers = 4;
    std::vector<pid_t> children;
    const HKEY key = Key();
    for (int writer = 0; writer < writers; ++writer)
        children.push_back(StartChild([key, writer] { return WriteMany(key, writer); }));
    EXPECT_EQ(WriteMany(Key(), writers), 0);
    for (const pid_t child : children)
        EXPECT_EQ(WaitForChild(child), 0);
    for (int writer = 0; writer <= writers; ++writer)
    {
        for (int i = 0; i < 200; i += 2)
        {
            const std::wstring name = std::to_wstring(writer) + L"-" + std::to_wstring(i);
            ASSERT_EQ(TextOf(Key(), name), L"text of " + name);
        }
    }
    EXPECT_EQ(ValueNames(Key()).size(), 100u * (writers + 1));
    EXPECT_EQ(SubKeyNames(Key()).size(), 100u * (writers + 1));
}

TEST_F(RegistryProcessesLinuxTest, AChangeIsSeenByOthersAtTheirNextCall)
{
    const HKEY key = Key();
    SetText(Key(), L"value", L"mine");
    const HKEY doomed = MakeKey(Key(), L"Doomed");
    const auto change = [key]
    {
        return SetText(key, L"value", L"theirs") != ERROR_SUCCESS ||
               RegDeleteKeyW(key, L"Doomed") != ERROR_SUCCESS;
    };
    ASSERT_EQ(WaitForChild(StartChild(change)), 0);
    EXPECT_EQ(TextOf(Key(), L"value"), L"theirs");
    EXPECT_EQ(SetText(Key(), L"value", L"mine again"), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(Key(), L"value"), L"mine again");
    EXPECT_EQ(SetText(doomed, L"value", L"text"), ERROR_KEY_DELETED);
    RegCloseKey(doomed);
}

TEST_F(RegistryProcessesLinuxTest, AKilledWriterLeavesOnlyWholeValues)
{
    const HKEY key = Key();
    const std::wstring text(3000, L't');
    const pid_t writer = StartChild(
        [key, &text]
        {
            for (int i = 0;; ++i)
                SetText(key, L"value" + std::to_wstring(i % 50), text);
            return 0;
        });
    while (TextOf(Key(), L"value49") != text)
        continue;
    ASSERT_EQ(kill(writer, SIGKILL), 0);
    EXPECT_EQ(WaitForChild(writer), -1);

    const WarningLog log;
    ReadAnew();
    const std::vector<std::wstring> names = ValueNames(Key());
    EXPECT_EQ(names.size(), 50u);
    for (const std::wstring& name : names)
        EXPECT_EQ(TextOf(Key(), name), text);
    EXPECT_EQ(SetText(Key(), L"value0", L"next"), ERROR_SUCCESS);
    EXPECT_EQ(WarningLog::Lines(), QStringList{});
}

} // namespace
