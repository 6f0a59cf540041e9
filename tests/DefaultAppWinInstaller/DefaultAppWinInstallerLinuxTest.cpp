#include "DefaultAppWinInstaller/DefaultAppWinInstaller.h"

#include "platform/Exception.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/PalMachine.h"
#include "support/SignalLog.h"
#include "support/UiAutomationFakes.h"

#include <QDir>
#include <QFile>

#include <Pal.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <thread>

using namespace Vorlan;

namespace
{

const QString settings = "activate\twindows.immersivecontrolpanel_cw5n1h2txyewy!"
                         "microsoft.windows.immersivecontrolpanel\tpage=SettingsPageAppsDefaults";

class DefaultAppLinuxTest : public testing::Test
{
protected:
    void RunOn(const QByteArray& windowsVersion)
    {
        WriteFile(machine.Path("machine/machine.ini"),
            "[General]\nwindowsVersion=" + windowsVersion + '\n');
    }

    // What was asked of the system so far.
    QStringList Requests() const
    {
        const QString path = machine.Path("machine/default-apps.txt");
        if (!QFile::exists(path))
            return {};
        return QString::fromUtf8(ReadFile(path)).split('\n', Qt::SkipEmptyParts);
    }

    void SetDefault(AppType type)
    {
        SetDefaultApplication(type, {".mp4", ".mkv"}, "Vorlan Quillax", machine.Path("apps"));
    }

    Machine machine;
    AutomationFake automation;
    const Pal::ScopedClass automationClass{UiAutomation::classCUIAutomation, [this]
        {
            automation.AddRef();
            return &automation;
        }};
};

} // namespace

TEST_F(DefaultAppLinuxTest, SettingsOpensAtTheEntryAndItsButtonIsClicked)
{
    RunOn("10.0.19045");
    SetDefault(AppType::Video);
    EXPECT_EQ(
        Requests(), QStringList({settings, settings + "&target=SystemSettings_DefaultApps_Video"}));
    ASSERT_NE(automation.handler, nullptr);

    ElementFake other(L"SystemSettings_DefaultApps_Audio_Button");
    ElementFake button(L"SystemSettings_DefaultApps_Video_Button");
    std::thread(
        [&]
        {
            automation.Focus(other);
            automation.Focus(button);
        })
        .join();
    EXPECT_EQ(other.clicks, 0);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_EQ(automation.handler, nullptr);
    EXPECT_EQ(automation.references, 1);
}

TEST_F(DefaultAppLinuxTest, EveryFailureOfComEndsItsStepQuietly)
{
    RunOn("10.0.19045");
    const char* const activate = "IApplicationActivationManager::ActivateApplication";
    const struct
    {
        const char* function;
        unsigned call;
        int requests;
        bool isHandlerSet;
    } cases[] = {{"CoInitialize", 1, 0, false}, {"CoCreateInstance", 1, 2, false},
        {"CoCreateInstance", 2, 0, true}, {"CoAllowSetForegroundWindow", 1, 2, true},
        {activate, 1, 0, true}, {activate, 2, 1, true}};
    for (const auto& failing : cases)
    {
        // A thread of its own, on which COM is not initialised yet.
        std::thread(
            [&]
            {
                const Pal::ScopedFault fault(failing.function, ERROR_ACCESS_DENIED, failing.call);
                EXPECT_NO_THROW(SetDefault(AppType::Audio)) << failing.function;
            })
            .join();
        EXPECT_EQ(Requests().size(), failing.requests) << failing.function << failing.call;
        EXPECT_EQ(automation.handler != nullptr, failing.isHandlerSet) << failing.function;
        automation.RemoveFocusChangedEventHandler(automation.handler);
        QFile::remove(machine.Path("machine/default-apps.txt"));
    }
    EXPECT_EQ(machine.Log(), QStringList());
}

TEST_F(DefaultAppLinuxTest, OlderWindowsIsAskedForEachExtension)
{
    const QStringList extensions = {
        "default\tVorlan Quillax\t.mp4", "default\tVorlan Quillax\t.mkv"};
    RunOn("6.1.7601");
    SetDefault(AppType::Video);
    EXPECT_EQ(Requests(), extensions) << "the registrator is not there";
    {
        const Pal::ScopedFault refused("ShellExecuteExW", ERROR_CANCELLED);
        SetDefault(AppType::Video);
    }
    EXPECT_EQ(Requests(), extensions + extensions);
    {
        const Pal::ScopedFault noClass("CoCreateInstance", ERROR_ACCESS_DENIED);
        SetDefault(AppType::Video);
    }
    EXPECT_EQ(Requests(), extensions + extensions);
    EXPECT_EQ(automation.handler, nullptr);

    RunOn("6.0.6002");
    SetDefault(AppType::Video);
    EXPECT_EQ(Requests(), extensions + extensions);
}

TEST_F(DefaultAppLinuxTest, UnknownTypeThrowsBeforeAnythingIsOpened)
{
    RunOn("10.0.19045");
    EXPECT_THROW(SetDefault(static_cast<AppType>(3)), Exception);
    EXPECT_EQ(Requests(), QStringList());
    EXPECT_EQ(automation.handler, nullptr);
}

TEST_F(DefaultAppLinuxTest, InstallationThatSomebodyWatchesEndsWithIt)
{
    RunOn("6.1.7601");
    const QString name = "setup.exe";
    for (const bool unattended : {true, false})
    {
        InstallerMediator mediator({name, false, unattended, QSettings::UserScope, false});
        MediatorAccess access{mediator};
        access.Profile().extensionAssociations = {{}, {}};
        access.Profile().extensionAssociations[0].extensions = QStringList({".mp4", ".mkv"});
        access.Profile().extensionAssociations[1].extensions = QStringList(".wmv");
        access.Profile().defaultAppType = static_cast<int>(AppType::Video);
        access.Settings().defaultApps = 2;
        access.Settings().installDir = machine.Path("apps/Vorlan Quillax/");
        access.OpenArchive(Payload("small.7z"));
        access.SkipWaits();
        SignalLog calls(mediator);
        mediator.StartInstallation();
        calls.WaitForEnd();
        access.Join();
        EXPECT_EQ(calls.Calls().last(), "InstallationFinished");
        EXPECT_EQ(Requests().size(), unattended ? 0 : 3);
    }
}
