#include "autolaunch/CreateAutoLauncher.h"

#include "autolaunch/AutoLauncherImpl.h"
#include "autolaunch/AutoLauncherTaskSchedulerImpl.h"

namespace Vorlan
{

std::shared_ptr<IAutoLauncher> CreateAutoLauncher(QSettings::Scope scope, int kind)
{
    constexpr int taskScheduler = 1;
    if (kind == taskScheduler)
        return std::make_shared<AutoLauncherTaskSchedulerImpl>();
    return std::make_shared<AutoLauncherImpl>(scope);
}

} // namespace Vorlan
