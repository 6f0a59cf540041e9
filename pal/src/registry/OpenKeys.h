// Keys behind an HKEY.
#pragma once

#include "../HandleTable.h"
#include "RegistryStore.h"

namespace Pal
{

// Where a key is: which root of which machine, and the names on the way.
struct KeyLocation
{
    std::shared_ptr<RegistryStore> store;
    RegistryRoot root = RegistryRoot::CurrentUser;
    KeyPath path;
};

class OpenKey : public OpenObject
{
public:
    OpenKey(KeyLocation location, REGSAM access);

    std::string Name() const override;

    const KeyLocation& Location() const { return m_location; }
    bool Allows(REGSAM rights) const { return (m_access & rights) == rights; }

    // The key in the tree as it is now, or null once the key was deleted. A key that was deleted
    // and made anew while the file was being replaced counts as the same one.
    std::shared_ptr<KeyNode> Node();

private:
    const KeyLocation m_location;
    const REGSAM m_access;
    std::shared_ptr<KeyNode> m_node;
    unsigned m_generation = 0;
    bool m_deleted = false;
};

bool IsPredefined(HKEY key);

// The key behind a handle, or null. For a predefined key that is what overrides it, or the root of
// the current machine. The registry's mutex must be held.
std::shared_ptr<OpenKey> FindOpenKey(HKEY key);

// Null undoes it.
void OverridePredefined(HKEY predefined, std::shared_ptr<OpenKey> replacement);

} // namespace Pal
