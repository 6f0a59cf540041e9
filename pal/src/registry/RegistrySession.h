// Access to the registry for the duration of one call.
#pragma once

#include "registry/OpenKeys.h"

#include <mutex>

namespace Pal
{

// Guards the open keys and the trees in memory.
std::mutex& RegistryMutex();

// From construction to destruction the thread holds a mutex within this process and
// the file lock against other processes. Warnings are printed after both are released, so a message
// handler may use the registry.
class RegistrySession
{
public:
    // rights: required of the handle.
    RegistrySession(HKEY handle, REGSAM rights, Access access);
    ~RegistrySession();
    RegistrySession(const RegistrySession&) = delete;
    RegistrySession& operator=(const RegistrySession&) = delete;

    // The members below may be used only after ERROR_SUCCESS.
    LSTATUS Error() const { return error; }

    const KeyLocation& Location() const { return key->Location(); }
    KeyNode& Key() const { return *node; }
    const std::shared_ptr<KeyNode>& Root() const { return File().Root(); }

    // Changes of the key itself, in the tree and on disk; neither is changed after a failure.
    LSTATUS SetValue(RegistryValue value);
    LSTATUS RemoveValue(const std::u16string& name);

    // Changes at a path below the root.
    LSTATUS MakeKeyAt(const KeyPath& path);
    LSTATUS RemoveKeyAt(const KeyPath& path);

private:
    LSTATUS Open(REGSAM rights, Access access);
    RegistryFile& File() const { return Location().store->File(Location().root); }
    LSTATUS Save();

    std::unique_lock<std::mutex> processLock;
    std::shared_ptr<OpenKey> key;
    std::shared_ptr<KeyNode> node;
    Descriptor fileLock;
    LSTATUS error;
};

} // namespace Pal
