#include "autolaunch/PriorityAutoLauncherLogic.h"

#include <stdexcept>
#include <utility>

namespace Vorlan
{

PriorityAutoLauncherLogic::PriorityAutoLauncherLogic(
    std::shared_ptr<IAutoLauncher> autoLauncher, AutoLauncherApp ownApp, Priorities priorityTable)
    : priorities(std::move(priorityTable)),
      launcher(std::move(autoLauncher)),
      own(std::move(ownApp))
{
}

void PriorityAutoLauncherLogic::AddToStartup()
{
    if (own.id.empty() || own.path.empty())
        return;
    FindEntry();
    if (!found.id.empty())
    {
        if (!IsFoundWeaker())
            return;
        launcher->Unregister(found.id);
    }
    launcher->Register(own.id, own.path, own.arguments);
}

bool PriorityAutoLauncherLogic::RemoveFromStartup()
{
    if (own.id.empty())
        return false;
    FindEntry();
    const bool isOwnProduct = !found.id.empty() && found.product == own.product;
    return launcher->Unregister(isOwnProduct ? found.id : own.id);
}

bool PriorityAutoLauncherLogic::IsInStartup()
{
    if (own.id.empty())
        return false;
    FindEntry();
    return !found.id.empty() && !IsFoundWeaker();
}

void PriorityAutoLauncherLogic::FindEntry()
{
    found = {};
    for (const std::string& name : launcher->GetRegisteredNames())
    {
        const std::optional<AutoLauncherApp> app = AutoLauncherApp::FromId(name);
        if (app && app->app == own.app)
        {
            found = *app;
            return;
        }
    }
}

int PriorityAutoLauncherLogic::PriorityOf(const AutoLauncherApp& app) const
{
    const auto priority = priorities.find(app.product);
    if (priority == priorities.end())
        throw std::runtime_error("Not exist product name for auto launcher appId: (current: " +
                                 own.id + " exist: " + found.id + " )");
    return priority->second;
}

bool PriorityAutoLauncherLogic::IsFoundWeaker() const
{
    const int priorityOfFound = PriorityOf(found);
    const int priorityOfOwn = PriorityOf(own);
    return priorityOfFound < priorityOfOwn ||
           (priorityOfFound == priorityOfOwn && found.VersionValue() < own.VersionValue());
}

} // namespace Vorlan
