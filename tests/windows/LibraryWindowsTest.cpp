#include "installer/Shortcuts.h"
#include "support/Machine.h"

#include <QDir>

#include <gtest/gtest.h>

#include <windows.h>

using namespace Vorlan;

namespace
{

constexpr char getStandardLocation[] = "_ZN6Vorlan19GetStandardLocationENS_16StandardLocationE";

std::wstring LibraryPath()
{
    return QDir::toNativeSeparators(FRONTEND_FOLDER "/InstallerLib.dll").toStdWString();
}

} // namespace

TEST(LibraryWindowsTest, CanBeLoadedUsedAndUnloadedAgainAndAgain)
{
    const Machine machine;
    for (int round = 0; round < 3; ++round)
    {
        const HMODULE library = LoadLibraryW(LibraryPath().c_str());
        ASSERT_NE(library, nullptr) << GetLastError();
        using Function = QString (*)(StandardLocation);
        const auto function = reinterpret_cast<Function>(
            reinterpret_cast<void*>(GetProcAddress(library, getStandardLocation)));
        ASSERT_NE(function, nullptr);
        EXPECT_EQ(
            function(StandardLocation::AppData), GetStandardLocation(StandardLocation::AppData));
        EXPECT_TRUE(FreeLibrary(library));
        EXPECT_EQ(GetModuleHandleW(L"InstallerLib.dll"), nullptr);
    }
}
