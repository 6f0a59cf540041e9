#pragma once

#include <string>
#include <vector>

namespace Vorlan
{

// Makes the system start programs at logon. Entries are named; all texts are UTF-8. Nothing here
// throws on a failure of the system; text that is not valid UTF-8 throws std::range_error.
class IAutoLauncher
{
public:
    virtual ~IAutoLauncher() = default;

    virtual bool IsRegistered(const std::string& name) = 0;
    virtual bool Register(const std::string& name, const std::string& path,
        const std::vector<std::string>& arguments) = 0;
    virtual bool Unregister(const std::string& name) = 0;
    virtual std::vector<std::string> GetRegisteredNames() = 0;
};

} // namespace Vorlan
