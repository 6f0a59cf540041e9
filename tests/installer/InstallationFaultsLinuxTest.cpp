#include "installer/InstallerMediator.h"
#include "platform/System.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <Pal.h>
#include <windows.h>

#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class InstallationFaultsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        InstallationSettings settings = mediator.GetSettings();
        settings.installDir = machine.Path("Vorlan Quillax/");
        mediator.SetSettings(settings);
        access.OpenArchive(Payload("small.7z"));
        access.SkipWaits();
    }

    void Install()
    {
        mediator.StartInstallation();
        signalLog.WaitForEnd();
        access.Join();
    }

    Machine machine;
    const QString name = "setup.exe";
    InstallerMediator mediator{{name, false, true, QSettings::UserScope, false}};
    MediatorAccess access{mediator};
    SignalLog signalLog{mediator};
};

} // namespace

TEST_F(InstallationFaultsTest, FullDiskIsOneErrorAndTheNextRunIsComplete)
{
    {
        // Not the first writes: the registry writes through calls of its own.
        const Pal::ScopedFault full("WriteFile", ERROR_DISK_FULL, 3);
        Install();
    }
    EXPECT_EQ(signalLog.Count("InstallationError"), 1);
    EXPECT_EQ(signalLog.Count("InstallationFinished"), 0);
    EXPECT_EQ(mediator.GetInstallationState(), InstallationState::NotStarted);
    EXPECT_TRUE(
        machine.Log().contains("Error  Cannot write output file  in InstallerMediator::Extract()"));

    Install();
    EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished");
    EXPECT_EQ(ReadFile(machine.Path("Vorlan Quillax/libs/codec one.dll")),
        ReadFile(Payload("small-content/libs/codec one.dll")));
}

TEST_F(InstallationFaultsTest, RegistryThatCannotBeWrittenDoesNotStopTheRun)
{
    const Pal::ScopedFault refused("RegSetValueExW", ERROR_ACCESS_DENIED);
    Install();
    EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished");
    EXPECT_EQ(access.Registry().GetInstallLocation(), machine.Path("Vorlan Quillax/"));
}

TEST_F(InstallationFaultsTest, DamagedRegistryIsReportedAndSetAside)
{
    const QString file = machine.Path("machine/registry/HKEY_CURRENT_USER.reg");
    WriteFile(file, "no registry at all");
    InstallerMediator next({name, false, true, QSettings::UserScope, false});
    MediatorAccess nextAccess{next};
    next.SetSettings(mediator.GetSettings());
    nextAccess.OpenArchive(Payload("small.7z"));
    SignalLog nextLog(next);
    next.StartInstallation();
    nextLog.WaitForEnd();

    EXPECT_EQ(nextLog.Calls().last(), "InstallationFinished");
    EXPECT_EQ(ReadFile(file + ".damaged-1"), "no registry at all");
    EXPECT_EQ(machine.Log().filter("Registry file is damaged and was set aside").size(), 1);
    EXPECT_EQ(nextAccess.Registry().GetInstallLocation(), machine.Path("Vorlan Quillax/"));
}

TEST_F(InstallationFaultsTest, MachineWithoutShellFoldersGetsNothingIntoTheRootOfItsDrive)
{
    {
        const Pal::ScopedFault missing("SHGetSpecialFolderPathW", ERROR_FILE_NOT_FOUND);
        const InstallerMediator next({name, false, true, QSettings::UserScope, false});
        EXPECT_EQ(next.GetSettings().installDir, "");
        mediator.SetSettings(next.GetSettings());
    }
    {
        const Pal::ScopedFault missing("SHGetSpecialFolderPathW", ERROR_FILE_NOT_FOUND);
        EXPECT_EQ(Platform::LogFolder(), "");
    }
    Install();
    EXPECT_EQ(signalLog.Count("InstallationError"), 1);
    EXPECT_TRUE(machine.Log().contains(
        "Error  There is no folder to install into  in InstallerMediator::Extract()"));

    access.Settings().installDir = machine.Path("Vorlan Quillax/");
    const Pal::ScopedFault missing("SHGetSpecialFolderPathW", ERROR_FILE_NOT_FOUND);
    access.ExtractFiles({});
    access.UpdateProgramData();
    EXPECT_EQ(signalLog.Count("CopyFileError(fonts.conf, Failed to move file"), 1);
    EXPECT_TRUE(QFile::exists(machine.Path("Vorlan Quillax/fonts.conf")));
}
