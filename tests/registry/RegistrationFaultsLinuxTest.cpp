#include "installer/InstallerMediator.h"

#include "installer/Shortcuts.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/RegistryTree.h"

#include <Pal.h>
#include <windows.h>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(RegistrationFaults, FailingCallLosesItsValueAndNothingElse)
{
    const auto register_ = [](const char* function, unsigned call, bool& hasFired)
    {
        const Machine machine;
        const QString name = "setup.exe";
        InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
        {
            const Pal::ScopedFault fault(
                function, ERROR_ACCESS_DENIED, call, Pal::ScopedFault::Expect::MayStayUnused);
            MediatorAccess{mediator}.AddRegistryInfo();
            hasFired = fault.Fired();
        }
        return RegistryTree("HKEY_CURRENT_USER", "Software").filter(" = ").size();
    };
    bool hasFired = false;
    const int complete = register_("RegSetValueExW", 100000, hasFired);
    ASSERT_FALSE(hasFired);
    for (unsigned call = 1; call < 60; ++call)
    {
        const int written = register_("RegSetValueExW", call, hasFired);
        EXPECT_EQ(written, hasFired ? complete - 1 : complete) << call;
    }
}

TEST(RegistrationFaults, ShellFolderThatIsNotThereLeavesTheRestOfTheShortcuts)
{
    const Machine machine;
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.Settings().installDir = machine.Path("");
    const Pal::ScopedFault missing("IPersistFile::Save", ERROR_ACCESS_DENIED);
    access.CreateShortcuts();
    EXPECT_EQ(machine.Log().filter("' failed with code=").size(), 1);
    EXPECT_EQ(ListTree(GetStandardLocation(StandardLocation::Desktop)).size() +
                  ListTree(GetStandardLocation(StandardLocation::Programs)).filter(".lnk").size(),
        3);
}
