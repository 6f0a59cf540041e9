#include "platform/ApplicationRegistry.h"

#include "base/Handle.h"
#include "base/ProductProfile.h"
#include "platform/Path.h"
#include "platform/Registry.h"

#include <array>
#include <set>

namespace Vorlan::App
{

namespace
{

constexpr std::size_t longestKeyName = 256; // 255 characters and a zero

QString CompanyKey()
{
    return QStringLiteral("Software\\") + ProductProfile::companyName;
}

std::string ReadProductValue(const std::string& key, const QString& name)
{
    using Util::RegistryHelper;
    const RegistryHelper helper({CompanyKey() + '\\' + QString::fromStdString(key)},
        RegistryHelper::AccessFlags(RegistryHelper::everywhere));
    return helper.GetValue(name).toStdString();
}

void AddKeyNames(HKEY root, REGSAM view, std::set<std::string>& names)
{
    Platform::UniqueKey company;
    const std::wstring path = Platform::WideFromText(CompanyKey());
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | view, company.Put()) != ERROR_SUCCESS)
        return;
    std::array<wchar_t, longestKeyName> name = {};
    for (DWORD index = 0;; ++index)
    {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(company.Get(), index, name.data(), &length, nullptr, nullptr, nullptr,
                nullptr) != ERROR_SUCCESS)
            break;
        names.insert(Platform::TextFromWide(std::wstring(name.data(), length)).toStdString());
    }
}

class ApplicationRegistry : public IApplicationRegistry
{
public:
    std::vector<Info> GetApplications() const override
    {
        std::set<std::string> keys;
        for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY})
        {
            AddKeyNames(HKEY_CURRENT_USER, view, keys);
            AddKeyNames(HKEY_LOCAL_MACHINE, view, keys);
        }
        std::vector<Info> applications;
        for (const std::string& key : keys)
        {
            const std::string path = ReadProductValue(key, "ExePath");
            const std::string name = path.substr(path.find_last_of("/\\") + 1);
            applications.push_back(
                {name.empty() ? key : name, key, ReadProductValue(key, "ParentProductId")});
        }
        return applications;
    }
};

class RegisteredName : public IApplicationConfigReader
{
public:
    explicit RegisteredName(std::string registered) : name(std::move(registered)) {}
    std::string GetDisplayName() const override { return name; }

private:
    std::string name;
};

} // namespace

std::unique_ptr<IApplicationRegistry> CreateApplicationRegistry(const ParsingOptions&)
{
    return std::make_unique<ApplicationRegistry>();
}

std::vector<IApplicationRegistry::Info> getAllChildApplications(
    const std::shared_ptr<IApplicationRegistry>& registry, const std::string& productId)
{
    std::vector<IApplicationRegistry::Info> children;
    for (const IApplicationRegistry::Info& application : registry->GetApplications())
    {
        if (application.parentProductId == productId)
            children.push_back(application);
    }
    return children;
}

std::unique_ptr<IApplicationConfigReader> createExternalConfigReader(
    const IApplicationRegistry::Info& application, const std::string& language)
{
    for (const std::string& value : {"DisplayName_" + language, std::string("DisplayName")})
    {
        std::string name = ReadProductValue(application.key, QString::fromStdString(value));
        if (!name.empty())
            return std::make_unique<RegisteredName>(std::move(name));
    }
    return nullptr;
}

} // namespace Vorlan::App
