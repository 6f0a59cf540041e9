#include "support/ChildProcesses.h"

namespace
{

class MutexesTest : public PalMachine
{
protected:
    static TestHandle Create(const wchar_t* name)
    {
        SetLastError(ERROR_GEN_FAILURE);
        return TestHandle(CreateMutexW(nullptr, FALSE, name));
    }
};

TEST_F(MutexesTest, TheSecondOneToMakeItLearnsThatItWasThere)
{
    TestHandle first = Create(L"VorlanMutexesTest");
    ASSERT_TRUE(first.Get());
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SUCCESS});
    TestHandle second = Create(L"VorlanMutexesTest");
    ASSERT_TRUE(second.Get());
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ALREADY_EXISTS});
    first.Close();
    TestHandle third = Create(L"Local\\VorlanMutexesTest");
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ALREADY_EXISTS});
    second.Close();
    third.Close();
    const TestHandle fourth = Create(L"VorlanMutexesTest");
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SUCCESS});
}

TEST_F(MutexesTest, NamesAreToldApart)
{
    const TestHandle one = Create(L"VorlanMutexesTest-{\u00e4/*}");
    const TestHandle other = Create(L"VorlanMutexesTest-{\u00c4/*}");
    EXPECT_TRUE(one.Get());
    EXPECT_TRUE(other.Get());
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SUCCESS});
}

} // namespace
