#pragma once

#include "autolaunch/AutoLauncherApp.h"
#include "autolaunch/IAutoLauncher.h"
#include "autolaunch/IAutoLauncherLogic.h"

#include <map>
#include <memory>
#include <string>

namespace Vorlan
{

// One program, shared by several products, has one entry: that of the product with the highest
// priority, and of its newest version.
class PriorityAutoLauncherLogic : public IAutoLauncherLogic
{
public:
    // Product id to priority; a higher number wins.
    using Priorities = std::map<std::string, int>;

    PriorityAutoLauncherLogic(std::shared_ptr<IAutoLauncher> autoLauncher, AutoLauncherApp ownApp,
        Priorities priorityTable);

    // Registers the own entry unless a stronger one is there. Does nothing without an id or a path.
    void AddToStartup() override;
    // Removes the entry of the own product, whatever its version.
    bool RemoveFromStartup() override;
    // True exactly when AddToStartup would leave the entry that is there.
    bool IsInStartup() override;

private:
    void FindEntry();
    int PriorityOf(const AutoLauncherApp& app) const;
    bool IsFoundWeaker() const;

    Priorities priorities;
    std::shared_ptr<IAutoLauncher> launcher;
    AutoLauncherApp found; // its id is empty when there is none
    AutoLauncherApp own;
};

} // namespace Vorlan
