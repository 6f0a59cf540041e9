// Access to the registry for the duration of one call.
#pragma once

#include "registry/OpenKeys.h"

#include <functional>
#include <mutex>

namespace Pal
{

// From construction to destruction the thread holds the registry's mutex within this process and
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

    // Changes of the key itself, on disk and then in the tree.
    LSTATUS SetValue(RegistryValue value);
    LSTATUS RemoveValue(const std::u16string& name);

    // Changes at a path below the root.
    LSTATUS MakeKeyAt(const KeyPath& path);
    LSTATUS RemoveKeyAt(const KeyPath& path);

private:
    LSTATUS Open(REGSAM rights, Access access);
    RegistryFile& File() const { return Location().store->File(Location().root); }
    LSTATUS Change(const std::u16string& record, const std::function<void()>& changeTree);

    std::unique_lock<std::mutex> processLock;
    std::shared_ptr<OpenKey> key;
    std::shared_ptr<KeyNode> node;
    Descriptor fileLock;
    LSTATUS error;
};

// The mutex that a session holds, for calls that need no file.
std::mutex& RegistryMutex();

} // namespace Pal
