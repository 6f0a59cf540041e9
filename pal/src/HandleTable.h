// Maps the HANDLE and HKEY values of this process to their objects.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Pal
{

class OpenObject
{
public:
    virtual ~OpenObject() = default;

    // The name in Pal::OpenHandles.
    virtual std::string Name() const = 0;

    // Releases the system's resource and returns its error.
    virtual DWORD Close() { return ERROR_SUCCESS; }
};

class HandleTable
{
public:
    static HandleTable& Instance();

    HANDLE Add(std::shared_ptr<OpenObject> object);

    // Adds the object, or returns null if an open object conflicts with it.
    using Conflict = std::function<bool(const OpenObject&)>;
    HANDLE AddUnless(const Conflict& conflict, std::shared_ptr<OpenObject> object);

    // The object of that type, or null.
    template <typename Object>
    std::shared_ptr<Object> Find(HANDLE handle)
    {
        const std::lock_guard lock(mutex);
        const auto found = objects.find(handle);
        return found == objects.end() ? nullptr : std::dynamic_pointer_cast<Object>(found->second);
    }

    // The same; removes the handle.
    template <typename Object>
    std::shared_ptr<Object> Take(HANDLE handle)
    {
        std::shared_ptr<Object> object = Find<Object>(handle);
        const std::lock_guard lock(mutex);
        return object && objects.erase(handle) == 1 ? object : nullptr;
    }

    std::vector<std::string> Names();

private:
    HANDLE Insert(std::shared_ptr<OpenObject> object);

    std::mutex mutex;
    std::map<HANDLE, std::shared_ptr<OpenObject>> objects;
    ULONG_PTR lastHandle = 0;
};

} // namespace Pal
