// The objects of HKEY handles.
#pragma once

#include "HandleTable.h"
#include "registry/RegistryStore.h"

namespace Pal
{

// The location of a key: machine, root and path.
struct KeyLocation
{
    std::shared_ptr<RegistryStore> store;
    RegistryRoot root = RegistryRoot::CurrentUser;
    KeyPath path;
};

class OpenKey : public OpenObject
{
public:
    OpenKey(KeyLocation place, REGSAM rights);

    std::string Name() const override;

    const KeyLocation& Location() const { return location; }
    bool Allows(REGSAM rights) const { return (access & rights) == rights; }

    // The key in the tree as it is now, or null once the key was deleted. A key that was deleted
    // and made anew while the file was being replaced counts as the same one.
    std::shared_ptr<KeyNode> Node();

private:
    const KeyLocation location;
    const REGSAM access;
    std::shared_ptr<KeyNode> node;
    unsigned generation = 0;
    bool deleted = false;
};

bool IsPredefined(HKEY key);

// The key of a handle, or null; for a predefined key its replacement, or the root of the current
// machine. The registry's mutex must be held.
std::shared_ptr<OpenKey> FindOpenKey(HKEY key);

// A null replacement removes the one there is.
void OverridePredefined(HKEY predefined, std::shared_ptr<OpenKey> replacement);

} // namespace Pal
