#include "platform/WebConfig.h"
#include "network/EventHandlerList.h"
#include "network/TopManager.h"
#include "network/WebConfigRequest.h"
#include "platform/SessionTracker.h"
#include "support/Environment.h"
#include "support/Machine.h"
#include "support/SignalLog.h"
#include "support/TestServers.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <thread>

using namespace Vorlan;
using namespace std::chrono_literals;
using App::WebConfig::ExitCode;
using TestServers::Address;

namespace
{

class WebConfigTest : public testing::Test
{
protected:
    static ExitCode Ask(const QString& address)
    {
        const Environment environment("VORLAN_CONFIG_URL", address);
        App::WebConfig::Context context;
        context.limit = 1s;
        return App::WebConfig::RequestWebConfig(std::move(context));
    }
    static bool IsKept() { return QFile::exists(App::WebConfig::ReceivedConfigPath()); }

    Machine machine;
};

} // namespace

TEST_F(WebConfigTest, WhatTheServiceSaysIsKeptForTheHost)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    SignalLog signalLog(mediator);
    InstallationSettings settings;
    settings.webConfigParameter = "a&b=\u00E9 +";
    const Environment environment("VORLAN_CONFIG_URL", Address("http", "/echo"));
    RequestWebConfig(settings, mediator);
    EXPECT_EQ(
        signalLog.Calls(), QStringList({"WebConfigLoaderStarted", "WebConfigLoaderFinished(0)"}));
    EXPECT_EQ(machine.Log().filter("config"),
        QStringList({"Request web config...", "Web config requested with  0"}));

    const QString session =
        QString::fromStdString(Tracking::getSessionTrackerInstance()->GetSessionText());
    EXPECT_EQ(session.size(), 36);
    const auto asked =
        QJsonDocument::fromJson(ReadFile(App::WebConfig::ReceivedConfigPath())).object();
    EXPECT_EQ(asked["method"].toString(), "GET");
    EXPECT_EQ(asked["query"].toObject(),
        QJsonObject({{"app", "quillax"}, {"version", "24.5.1"}, {"session", session},
            {"parameter", settings.webConfigParameter}}));
    EXPECT_EQ(asked["headers"].toObject()["user-agent"].toString(), "Vorlan Quillax/24.5.1");
}

TEST_F(WebConfigTest, EveryOtherEndHasItsCodeAndKeepsNothing)
{
    const QString http = Address("http", "/");
    EXPECT_EQ(Ask(Address("closed")), ExitCode::Offline);
    EXPECT_EQ(Ask("off"), ExitCode::SwitchedOff);
    EXPECT_EQ(Ask(Address("silent")), ExitCode::TimedOut);
    EXPECT_EQ(Ask(http + "stall"), ExitCode::TimedOut);
    EXPECT_EQ(Ask(http + "nothing"), ExitCode::ServerRefused);
    EXPECT_EQ(Ask(http + "loop"), ExitCode::ServerRefused);
    EXPECT_EQ(Ask(http + "half"), ExitCode::Failed);
    EXPECT_EQ(Ask(http + "longer"), ExitCode::Malformed);
    EXPECT_EQ(Ask(http + "endless"), ExitCode::Malformed);
    EXPECT_FALSE(IsKept());

    WriteFile(QFileInfo(App::WebConfig::ReceivedConfigPath()).path(), "in the way of the folder");
    EXPECT_EQ(Ask(http + "echo"), ExitCode::NotStored);
}

TEST(TopManagerTest, IsOneObjectThatObserversMayComeToFromAnyThread)
{
    struct Observer : App::TApplicationContextObservers
    {
        void OnContextChanged() override {}
    } observers[2];
    const auto comeAndGo = [&](Observer* observer)
    {
        for (int i = 0; i < 1000; ++i)
        {
            GetTopManager().AddObserver(observer);
            GetTopManager().RemoveObserver(observer);
        }
    };
    std::thread other(comeAndGo, &observers[0]);
    comeAndGo(&observers[1]);
    other.join();
    EXPECT_EQ(&GetTopManager(), &GetTopManager());
}

TEST(EventHandlerListTest, HoldsEachHandlerOnceInTheirOrder)
{
    Core::EventHandlerList<int, Core::SyncExecutePolicy> list;
    int numbers[] = {1, 2, 3};
    for (int* number : {&numbers[0], &numbers[1], &numbers[2], &numbers[1]})
        list.Add(number);
    list.Add(nullptr);
    list.Remove(nullptr);
    list.Remove(&numbers[1]);
    list.Remove(&numbers[1]);
    std::vector<int> seen;
    list.ForEach([&](int& number) { seen.push_back(number); });
    EXPECT_EQ(seen, std::vector<int>({1, 3}));
}
