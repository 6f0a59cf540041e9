#include "HandleTable.h"

#include "Faults.h"

#include <Pal.h>

#include <algorithm>

namespace Pal
{

HandleTable& HandleTable::Instance()
{
    static HandleTable& table =
        *new HandleTable; // never destroyed: calls may come from static destructors
    return table;
}

HANDLE HandleTable::Add(std::shared_ptr<OpenObject> object)
{
    const std::lock_guard lock(mutex);
    return Insert(std::move(object));
}

HANDLE HandleTable::AddUnless(const Conflict& conflict, std::shared_ptr<OpenObject> object)
{
    const std::lock_guard lock(mutex);
    const auto conflicts = [&conflict](const auto& entry) { return conflict(*entry.second); };
    if (std::any_of(objects.begin(), objects.end(), conflicts))
        return nullptr;
    return Insert(std::move(object));
}

std::vector<std::string> HandleTable::Names()
{
    std::vector<std::string> names;
    const std::lock_guard lock(mutex);
    for (const auto& [handle, object] : objects)
        names.push_back(object->Name());
    std::sort(names.begin(), names.end());
    return names;
}

// Values are never reused, so a stale handle is always detected. As on Windows they are multiples
// of four.
HANDLE HandleTable::Insert(std::shared_ptr<OpenObject> object)
{
    lastHandle += 4;
    const HANDLE handle = reinterpret_cast<HANDLE>(lastHandle);
    objects.emplace(handle, std::move(object));
    return handle;
}

std::vector<std::string> OpenHandles()
{
    return HandleTable::Instance().Names();
}

} // namespace Pal

// Keeps:   closes a handle of any type; ERROR_INVALID_HANDLE for any other value, such as a handle
//          that is already closed.
// Differs: another thread that is using the handle may fail with ERROR_INVALID_HANDLE.
BOOL CloseHandle(HANDLE object)
{
    const bool fault = Pal::FaultHits(__func__);
    const auto closed = Pal::HandleTable::Instance().Take<Pal::OpenObject>(object);
    if (fault)
        return FALSE;
    const DWORD error = closed ? closed->Close() : ERROR_INVALID_HANDLE;
    if (error != ERROR_SUCCESS)
        SetLastError(error);
    return error == ERROR_SUCCESS;
}
