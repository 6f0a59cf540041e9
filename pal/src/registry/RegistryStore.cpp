#include "registry/RegistryStore.h"

#include "ErrorMapping.h"
#include "FileLock.h"
#include "Machine.h"

#include <Pal.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

fs::path LockPath(const fs::path& machineRoot)
{
    return RegistryFolder(machineRoot) / "lock";
}

DWORD RefreshOrSetAside(RegistryFile& file, const Descriptor& lock)
{
    DWORD error = file.Refresh();
    if (error != ERROR_BADDB)
        return error;
    // Another process may have set it aside before this one had the exclusive lock.
    error = LockFile(lock, LOCK_EX);
    if (error == ERROR_SUCCESS)
        error = file.Refresh();
    return error == ERROR_BADDB ? file.SetAside() : error;
}

} // namespace

std::u16string RootName(RegistryRoot root)
{
    return root == RegistryRoot::CurrentUser ? u"HKEY_CURRENT_USER" : u"HKEY_LOCAL_MACHINE";
}

RegistryStore::RegistryStore(fs::path root)
    : machineRoot(std::move(root)),
      files{RegistryFile(RegistryFolder(machineRoot) / "HKEY_CURRENT_USER.reg",
                RootName(RegistryRoot::CurrentUser)),
          RegistryFile(RegistryFolder(machineRoot) / "HKEY_LOCAL_MACHINE.reg",
              RootName(RegistryRoot::LocalMachine))}
{
}

DWORD RegistryStore::OpenLock(Descriptor& lock) const
{
    lock = OpenLockFile(LockPath(machineRoot), O_CREAT);
    if (!lock.IsOpen() && errno == ENOENT)
    {
        const std::error_code error = CreateMachine(machineRoot);
        if (error)
            return ErrorFromErrno(error.value());
        lock = OpenLockFile(LockPath(machineRoot), O_CREAT);
    }
    return lock.IsOpen() ? ERROR_SUCCESS : ErrorFromErrno(errno);
}

DWORD RegistryStore::Enter(RegistryRoot root, Access access, Descriptor& lock)
{
    DWORD error = OpenLock(lock);
    if (error == ERROR_SUCCESS)
        error = LockFile(lock, access == Access::Write ? LOCK_EX : LOCK_SH);
    if (error == ERROR_SUCCESS)
        error = RefreshOrSetAside(File(root), lock);
    if (error != ERROR_SUCCESS)
        File(root).ReportFailure(access == Access::Write ? "written" : "read");
    return error;
}

std::shared_ptr<RegistryStore> CurrentStore()
{
    static auto& current = *new std::shared_ptr<RegistryStore>; // never destroyed: used during exit
    const fs::path root = MachineRoot();
    PutSystemFolderOnPath(root);
    if (!current || current->MachineRoot() != root)
        current = std::make_shared<RegistryStore>(root);
    return current;
}

} // namespace Pal
