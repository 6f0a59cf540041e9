// The registry of one machine: its root files and the lock that all processes share.
#pragma once

#include <array>
#include <memory>

#include "RegistryFile.h"

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
    explicit RegistryStore(std::filesystem::path machineRoot);

    RegistryFile& File(RegistryRoot root) { return m_files[static_cast<size_t>(root)]; }
    const std::filesystem::path& MachineRoot() const { return m_machineRoot; }

    // Takes the lock, making the machine first if it is not there, and brings the root's file up
    // to date. The lock is held as long as its descriptor is open.
    DWORD Enter(RegistryRoot root, Access access, Descriptor& lock);

    // Tidies the files that this process has appended to. Nothing is made that is not there.
    void CompactAtExit();

private:
    DWORD OpenLock(Descriptor& lock) const;

    const std::filesystem::path m_machineRoot;
    std::array<RegistryFile, 2> m_files;
};

// The store of the machine root that the environment names now.
std::shared_ptr<RegistryStore> CurrentStore();

std::u16string RootName(RegistryRoot root);

} // namespace Pal
