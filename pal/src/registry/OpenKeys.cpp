#include "registry/OpenKeys.h"

#include "Machine.h"

#include <QString>

#include <array>
#include <utility>

namespace Pal
{

namespace
{

RegistryRoot RootOf(HKEY predefined)
{
    return predefined == HKEY_CURRENT_USER ? RegistryRoot::CurrentUser : RegistryRoot::LocalMachine;
}

// The replacement of each root, or null.
std::array<std::shared_ptr<OpenKey>, 2>& Overrides()
{
    static auto& overrides = *new std::array<std::shared_ptr<OpenKey>, 2>;
    return overrides;
}

} // namespace

OpenKey::OpenKey(KeyLocation place, REGSAM rights) : location(std::move(place)), access(rights) {}

std::string OpenKey::Name() const
{
    std::u16string name = RootName(location.root);
    for (const std::u16string& component : location.path)
        name.append(u"\\").append(component);
    return QString::fromStdU16String(name).toStdString();
}

std::shared_ptr<KeyNode> OpenKey::Node()
{
    const RegistryFile& file = location.store->File(location.root);
    if (generation != file.Generation() && !deleted)
    {
        node = FindKey(file.Root(), location.path);
        generation = file.Generation();
    }
    deleted = deleted || !node || node->Deleted();
    return deleted ? nullptr : node;
}

bool IsPredefined(HKEY key)
{
    return key == HKEY_CURRENT_USER || key == HKEY_LOCAL_MACHINE;
}

std::shared_ptr<OpenKey> FindOpenKey(HKEY key)
{
    if (!IsPredefined(key))
        return HandleTable::Instance().Find<OpenKey>(key);
    const RegistryRoot root = RootOf(key);
    if (const auto& replacement = Overrides()[static_cast<size_t>(root)])
        return replacement;
    const bool isWritable = root == RegistryRoot::CurrentUser || IsAdministrator();
    return std::make_shared<OpenKey>(
        KeyLocation{CurrentStore(), root, {}}, isWritable ? KEY_ALL_ACCESS : KEY_READ);
}

void OverridePredefined(HKEY predefined, std::shared_ptr<OpenKey> replacement)
{
    Overrides()[static_cast<size_t>(RootOf(predefined))] = std::move(replacement);
}

} // namespace Pal
