// Every object of this process that a HANDLE or HKEY stands for.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <windows.h>

namespace Pal
{

class OpenObject
{
public:
    virtual ~OpenObject() = default;

    // What a person would call it: the path of a file or key.
    virtual std::string Name() const = 0;

    // Gives the object back to the system and says how that went.
    virtual DWORD Close() { return ERROR_SUCCESS; }
};

class HandleTable
{
public:
    static HandleTable& Instance();

    HANDLE Add(std::shared_ptr<OpenObject> object);

    // Adds the object unless one that is open already forbids it; then the result is null.
    using Conflict = std::function<bool(const OpenObject&)>;
    HANDLE AddUnless(const Conflict& conflict, std::shared_ptr<OpenObject> object);

    // The object of that kind behind the handle, or null.
    template <typename Object>
    std::shared_ptr<Object> Find(HANDLE handle)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_objects.find(handle);
        return found == m_objects.end() ? nullptr
                                        : std::dynamic_pointer_cast<Object>(found->second);
    }

    // The same, and the handle is no longer valid.
    template <typename Object>
    std::shared_ptr<Object> Take(HANDLE handle)
    {
        std::shared_ptr<Object> object = Find<Object>(handle);
        const std::lock_guard lock(m_mutex);
        return object && m_objects.erase(handle) == 1 ? object : nullptr;
    }

    std::vector<std::string> Names();

private:
    HANDLE Insert(std::shared_ptr<OpenObject> object);

    std::mutex m_mutex;
    std::map<HANDLE, std::shared_ptr<OpenObject>> m_objects;
    ULONG_PTR m_lastHandle = 0;
};

} // namespace Pal
