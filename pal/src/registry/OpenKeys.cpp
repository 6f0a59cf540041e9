#include "OpenKeys.h"

#include <QString>

namespace Pal
{

namespace
{

// What RegOverridePredefKey has put in the place of each root.
std::array<std::shared_ptr<OpenKey>, 2>& Overrides()
{
    static auto& overrides = *new std::array<std::shared_ptr<OpenKey>, 2>;
    return overrides;
}

RegistryRoot RootOf(HKEY predefined)
{
    return predefined == HKEY_CURRENT_USER ? RegistryRoot::CurrentUser : RegistryRoot::LocalMachine;
}

} // namespace

OpenKey::OpenKey(KeyLocation location, REGSAM access)
    : m_location(std::move(location)), m_access(access)
{
}

std::string OpenKey::Name() const
{
    std::u16string name = RootName(m_location.root);
    for (const std::u16string& component : m_location.path)
        name.append(u"\\").append(component);
    return QString::fromStdU16String(name).toStdString();
}

std::shared_ptr<KeyNode> OpenKey::Node()
{
    const RegistryFile& file = m_location.store->File(m_location.root);
    if (m_generation != file.Generation() && !m_deleted)
    {
        m_node = FindKey(file.Root(), m_location.path);
        m_generation = file.Generation();
    }
    m_deleted = m_deleted || !m_node || m_node->Deleted();
    return m_deleted ? nullptr : m_node;
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
    return std::make_shared<OpenKey>(KeyLocation{CurrentStore(), root, {}}, KEY_ALL_ACCESS);
}

void OverridePredefined(HKEY predefined, std::shared_ptr<OpenKey> replacement)
{
    Overrides()[static_cast<size_t>(RootOf(predefined))] = std::move(replacement);
}

} // namespace Pal
