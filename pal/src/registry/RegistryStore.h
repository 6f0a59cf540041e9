// The registry of one machine: its root files and the lock that all processes share.
#pragma once

#include "registry/RegistryFile.h"

#include <array>
#include <memory>

namespace Pal
{

enum class RegistryRoot : size_t
{
    CurrentUser,
    LocalMachine
};

enum class Access
{
    Read,
    Write
};

class RegistryStore
{
public:
    explicit RegistryStore(std::filesystem::path root);

    RegistryFile& File(RegistryRoot root) { return files[static_cast<size_t>(root)]; }
    const std::filesystem::path& MachineRoot() const { return machineRoot; }

    // Takes the lock, after creating the machine if it is missing, and updates the root's tree from
    // its file. The lock is held until its descriptor is closed.
    DWORD Enter(RegistryRoot root, Access access, Descriptor& lock);

private:
    DWORD OpenLock(Descriptor& lock) const;

    const std::filesystem::path machineRoot;
    std::array<RegistryFile, 2> files;
};

// The store of the machine root that the environment names now.
std::shared_ptr<RegistryStore> CurrentStore();

std::u16string RootName(RegistryRoot root);

} // namespace Pal
