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

namespace
{

// What the product's shortcuts become while a call of the system fails.
QStringList LinksMadeWhile(const char* function, DWORD error, unsigned call, Machine& machine)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.Settings().installDir = machine.Path("");
    {
        const Pal::ScopedFault fault(function, error, call);
        access.CreateShortcuts();
    }
    return ListTree(GetStandardLocation(StandardLocation::Desktop)) +
           ListTree(GetStandardLocation(StandardLocation::Programs)).filter(".lnk");
}

} // namespace

TEST(RegistrationFaults, LinkThatCannotBeSavedLeavesTheOtherShortcuts)
{
    Machine machine;
    EXPECT_EQ(LinksMadeWhile("IPersistFile::Save", ERROR_ACCESS_DENIED, 1, machine).size(), 3);
    EXPECT_EQ(machine.Log().filter("' failed with code=").size(), 1);
}

TEST(RegistrationFaults, ShellFolderThatIsNotThereGetsNoLinkAndTheOtherOnesDo)
{
    Machine machine;
    const char* const shellFolder = "SHGetSpecialFolderPathW";
    const QStringList onDesktop = LinksMadeWhile(shellFolder, ERROR_FILE_NOT_FOUND, 1, machine);
    EXPECT_EQ(onDesktop, QStringList("Vorlan Quillax.lnk"));
    EXPECT_EQ(machine.Log().filter("No folder for the shortcut '").size(), 3);
    QFile::remove(GetStandardLocation(StandardLocation::Desktop) + "/Vorlan Quillax.lnk");
    EXPECT_EQ(LinksMadeWhile(shellFolder, ERROR_FILE_NOT_FOUND, 2, machine).size(), 3);
    EXPECT_FALSE(QFile::exists("/Vorlan Quillax.lnk"));
}

TEST(RegistrationFaults, RemovalOfShortcutsFromAMissingFolderLeavesTheCurrentOneAlone)
{
    for (const unsigned missing : {1u, 2u}) // the Start menu, the desktop
    {
        const Machine machine;
        WriteFile("kept/file.txt", "stays");
        WriteFile("Vorlan Quillax.lnk", "stays");
        const QString name = "setup.exe";
        InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
        const Pal::ScopedFault fault("SHGetSpecialFolderPathW", ERROR_FILE_NOT_FOUND, missing);
        MediatorAccess{mediator}.RemoveShortcuts();
        EXPECT_EQ(ListTree("."), QStringList({"Vorlan Quillax.lnk", "kept/", "kept/file.txt"}));
    }
}
