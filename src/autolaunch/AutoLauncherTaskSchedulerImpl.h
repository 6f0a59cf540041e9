#pragma once

#include "autolaunch/IAutoLauncher.h"

namespace Vorlan
{

// Logon tasks of the task scheduler, through the elevated "schtasks" command. Each operation blocks
// for up to 5 seconds; a refused elevation makes it fail.
class AutoLauncherTaskSchedulerImpl : public IAutoLauncher
{
public:
    bool IsRegistered(const std::string& name) override;
    bool Register(const std::string& name, const std::string& path,
        const std::vector<std::string>& arguments) override;
    bool Unregister(const std::string& name) override;
    // Always empty: tasks are asked for by name only.
    std::vector<std::string> GetRegisteredNames() override;
};

} // namespace Vorlan
