// One call's hold on the registry.
#pragma once

#include <functional>
#include <mutex>

#include "OpenKeys.h"

namespace Pal
{

// From construction to destruction the calling thread has the registry for itself within this
// process, and holds the lock against other processes. Warnings that come up on the way are
// printed when all that is released, so a message handler may use the registry.
class RegistrySession
{
public:
    // rights: what the handle must have been opened with.
    RegistrySession(HKEY key, REGSAM rights, Access access);
    ~RegistrySession();
    RegistrySession(const RegistrySession&) = delete;
    RegistrySession& operator=(const RegistrySession&) = delete;

    // Whether the session may be used: the members below only after ERROR_SUCCESS.
    LSTATUS Error() const { return m_error; }

    const KeyLocation& Location() const { return m_key->Location(); }
    KeyNode& Key() const { return *m_node; }
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

    std::unique_lock<std::mutex> m_processLock;
    std::shared_ptr<OpenKey> m_key;
    std::shared_ptr<KeyNode> m_node;
    Descriptor m_fileLock;
    LSTATUS m_error;
};

// The mutex that a session holds, for what needs no file.
std::mutex& RegistryMutex();

} // namespace Pal
