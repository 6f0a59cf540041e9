#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

namespace
{

// What a program carries, without running it.
class ResourcesWindowsTest : public testing::TestWithParam<const char*>
{
protected:
    std::wstring Path() const
    {
        return QString(FRONTEND_FOLDER "/%1").arg(GetParam()).replace('/', '\\').toStdWString();
    }

    void SetUp() override
    {
        module = LoadLibraryExW(Path().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(module, nullptr) << GetParam();
    }
    void TearDown() override { FreeLibrary(module); }

    QByteArray Resource(WORD id, LPCWSTR type) const
    {
        const HRSRC place = FindResourceW(module, MAKEINTRESOURCEW(id), type);
        if (!place)
            return QByteArray();
        const void* const bytes = LockResource(LoadResource(module, place));
        return QByteArray(
            static_cast<const char*>(bytes), static_cast<int>(SizeofResource(module, place)));
    }

    HMODULE module = nullptr;
};

TEST_P(ResourcesWindowsTest, TheVersionIsTheProducts)
{
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(Path().c_str(), &ignored);
    ASSERT_GT(size, 0u);
    std::vector<BYTE> info(size);
    ASSERT_TRUE(GetFileVersionInfoW(Path().c_str(), 0, size, info.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(fixed->dwFileVersionMS, MAKELONG(5, 24));
    EXPECT_EQ(fixed->dwFileVersionLS, MAKELONG(0, 1));
    EXPECT_EQ(fixed->dwProductVersionMS, MAKELONG(5, 24));
}

TEST_P(ResourcesWindowsTest, ThereIsAnIconInSixSizes)
{
    const QByteArray directory = Resource(1, MAKEINTRESOURCEW(14)); // RT_GROUP_ICON
    ASSERT_GT(directory.size(), 6);
    EXPECT_EQ(directory[4], 6);
}

TEST_P(ResourcesWindowsTest, TheManifestAsksForWhatTheProgramNeeds)
{
    const bool isLibrary = QString(GetParam()).endsWith(".dll");
    const QByteArray manifest = Resource(isLibrary ? 2 : 1, MAKEINTRESOURCEW(24)); // RT_MANIFEST
    for (const char* part : {"level=\"asInvoker\"", ">PerMonitorV2, PerMonitor<", ">true/pm<",
             "longPathAware", ">UTF-8</activeCodePage>"})
        EXPECT_TRUE(manifest.contains(part)) << part;
}

INSTANTIATE_TEST_SUITE_P(Programs, ResourcesWindowsTest,
    testing::Values("InstallerLib.dll", "installergui.exe", "quill.exe", "VorlanLinkHelper.exe",
        "embedding-example.exe", "vorlan-tests.exe"));

} // namespace
