#include <shlobj.h>

#include <thread>

#include <gtest/gtest.h>

namespace
{

HRESULT Create(REFCLSID classId, REFIID iid, IUnknown** object)
{
    return CoCreateInstance(
        classId, nullptr, CLSCTX_INPROC_SERVER, iid, reinterpret_cast<void**>(object));
}

// Each test has a thread of its own, so that nothing is initialised on it yet.
template <typename Steps>
void OnFreshThread(Steps steps)
{
    std::thread(steps).join();
}

TEST(ComTest, EveryInitialisationWantsItsEnd)
{
    OnFreshThread(
        []
        {
            IUnknown* object = nullptr;
            EXPECT_EQ(CoInitialize(nullptr), S_OK);
            EXPECT_EQ(CoInitialize(nullptr), S_FALSE);
            CoUninitialize();
            EXPECT_EQ(Create(CLSID_ShellLink, IID_IUnknown, &object), S_OK);
            EXPECT_EQ(object->Release(), 0u);
            CoUninitialize();
            EXPECT_EQ(Create(CLSID_ShellLink, IID_IUnknown, &object), CO_E_NOTINITIALIZED);
        });
}

TEST(ComTest, TheInterfacesOfAnObjectAreOneObject)
{
    OnFreshThread(
        []
        {
            ASSERT_EQ(CoInitialize(nullptr), S_OK);
            IUnknown* link = nullptr;
            IUnknown* file = nullptr;
            IUnknown* identity[2] = {};
            ASSERT_EQ(Create(CLSID_ShellLink, IID_IShellLinkW, &link), S_OK);
            ASSERT_EQ(
                link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)), S_OK);
            link->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity[0]));
            file->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity[1]));
            EXPECT_EQ(identity[0], identity[1]);
            for (IUnknown* object : {link, file, identity[0]})
                object->Release();
            EXPECT_EQ(identity[1]->Release(), 0u);
            CoUninitialize();
        });
}

} // namespace
