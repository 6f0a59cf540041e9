#include <shlobj.h>

#include <thread>

#include <gtest/gtest.h>

TEST(ComTest, EveryInitialisationOfAThreadWantsItsEnd)
{
    const auto create = []
    {
        IUnknown* object = nullptr;
        const HRESULT result = CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
            IID_IUnknown, reinterpret_cast<void**>(&object));
        EXPECT_EQ(object != nullptr, result == S_OK);
        if (object)
        {
            EXPECT_EQ(object->Release(), 0u);
        }
        return result;
    };
    const auto steps = [&create]
    {
        EXPECT_EQ(create(), CO_E_NOTINITIALIZED);
        EXPECT_EQ(CoInitialize(nullptr), S_OK);
        EXPECT_EQ(CoInitialize(nullptr), S_FALSE);
        CoUninitialize();
        EXPECT_EQ(create(), S_OK);
        CoUninitialize();
        EXPECT_EQ(create(), CO_E_NOTINITIALIZED);
    };
    std::thread(steps).join();
}
