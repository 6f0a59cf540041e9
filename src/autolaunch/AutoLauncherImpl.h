#pragma once

#include "autolaunch/IAutoLauncher.h"
#include "base/Handle.h"

#include <QSettings>

namespace Vorlan
{

// Entries of the registry's Run key. Where the key cannot be opened for writing, every operation
// fails.
class AutoLauncherImpl : public IAutoLauncher
{
public:
    explicit AutoLauncherImpl(QSettings::Scope scope);

    bool IsRegistered(const std::string& name) override;
    bool Register(const std::string& name, const std::string& path,
        const std::vector<std::string>& arguments) override;
    bool Unregister(const std::string& name) override;
    // Stops at a name of 260 characters or more.
    std::vector<std::string> GetRegisteredNames() override;

private:
    Platform::UniqueKey key;
};

} // namespace Vorlan
