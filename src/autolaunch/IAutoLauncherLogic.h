#pragma once

namespace Vorlan
{

// Decides whether a product's program starts at logon. The operations throw std::runtime_error.
class IAutoLauncherLogic
{
public:
    virtual ~IAutoLauncherLogic() = default;

    virtual void AddToStartup() = 0;
    virtual bool RemoveFromStartup() = 0;
    virtual bool IsInStartup() = 0;
};

} // namespace Vorlan
