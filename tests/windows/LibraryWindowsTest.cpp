#include "identity/WebUidProvider.h"
#include "installer/InstallerMediator.h"
#include "installer/Shortcuts.h"
#include "support/Environment.h"
#include "support/Machine.h"
#include "support/TestServers.h"

#include <QDir>

#include <gtest/gtest.h>

#include <windows.h>

using namespace Vorlan;

namespace
{

constexpr char getStandardLocation[] = "_ZN6Vorlan19GetStandardLocationENS_16StandardLocationE";
constexpr char getWebUid[] =
    "_ZN6Vorlan14WebUidProvider9GetWebUidERKNS_17InstallerMediatorERK11QStringListRK7QStringbbRKNS_"
    "3App"
    "13WebUidManager10ParametersERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE";

std::wstring LibraryPath()
{
    return QDir::toNativeSeparators(FRONTEND_FOLDER "/InstallerLib.dll").toStdWString();
}

template <typename Function>
Function* Find(HMODULE library, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

} // namespace

TEST(LibraryWindowsTest, CanBeLoadedUsedAndUnloadedAgainAndAgain)
{
    const Machine machine;
    const Environment service(
        "VORLAN_WEBUID_URL", TestServers::Address("http", "/identity/library"));
    const QString name = "setup.exe";
    const InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    for (int round = 0; round < 3; ++round)
    {
        const HMODULE library = LoadLibraryW(LibraryPath().c_str());
        ASSERT_NE(library, nullptr) << GetLastError();
        auto* const location = Find<QString(StandardLocation)>(library, getStandardLocation);
        ASSERT_NE(location, nullptr);
        EXPECT_EQ(
            location(StandardLocation::AppData), GetStandardLocation(StandardLocation::AppData));
        // A transfer, so that libcurl is set up and must be left again.
        auto* const webUid = Find<decltype(WebUidProvider::GetWebUid)>(library, getWebUid);
        ASSERT_NE(webUid, nullptr);
        EXPECT_EQ(webUid(mediator, {}, {}, false, false, {}, {}).first, "new-id-0001");
        EXPECT_TRUE(FreeLibrary(library));
        EXPECT_EQ(GetModuleHandleW(L"InstallerLib.dll"), nullptr);
    }
}
