#include "autolaunch/StartupRegistration.h"

namespace Vorlan
{

void AddAppToStartup(QSettings::Scope, const AutoLaunchApp&, const AutoLaunchProduct&) {}

bool IsAppInStartup(QSettings::Scope, const AutoLaunchApp&, const AutoLaunchProduct&)
{
    return false;
}

void RemoveAppFromStartup(QSettings::Scope, const AutoLaunchApp&, const AutoLaunchProduct&) {}

} // namespace Vorlan
