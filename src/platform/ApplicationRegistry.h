#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Vorlan::App
{

// The maker's applications on this machine.
class IApplicationRegistry
{
public:
    // One application.
    struct Info
    {
        std::string name; // file name of its executable, or its key's name where it has none
        std::string key;  // name of its product key
        std::string parentProductId;
    };

    virtual ~IApplicationRegistry() = default;
    virtual std::vector<Info> GetApplications() const = 0;
};

// Reads what an application registered of itself.
class IApplicationConfigReader
{
public:
    virtual ~IApplicationConfigReader() = default;

    // Its display name, in the language the reader was made for.
    virtual std::string GetDisplayName() const = 0;
};

struct ParsingOptions
{
};

// The registry of applications: the product keys below the company key, of this user and of all
// users. Nothing is created by reading.
std::unique_ptr<IApplicationRegistry> CreateApplicationRegistry(const ParsingOptions& options);

// The applications whose "ParentProductId" is that product.
std::vector<IApplicationRegistry::Info> getAllChildApplications(
    const std::shared_ptr<IApplicationRegistry>& registry, const std::string& productId);

// A reader where the application registered a name for that language, in the value
// "DisplayName_<language>" of its product key, or one for all languages in "DisplayName"; else
// none.
std::unique_ptr<IApplicationConfigReader> createExternalConfigReader(
    const IApplicationRegistry::Info& application, const std::string& language);

} // namespace Vorlan::App
