#include "HandleTable.h"

#include <algorithm>

#include <Pal.h>

#include "Faults.h"

namespace Pal
{

HandleTable& HandleTable::Instance()
{
    static HandleTable& table = *new HandleTable; // outlives every static object that has handles
    return table;
}

HANDLE HandleTable::Add(std::shared_ptr<OpenObject> object)
{
    const std::lock_guard lock(m_mutex);
    return Insert(std::move(object));
}

HANDLE HandleTable::AddUnless(const Conflict& conflict, std::shared_ptr<OpenObject> object)
{
    const std::lock_guard lock(m_mutex);
    const auto conflicts = [&conflict](const auto& entry) { return conflict(*entry.second); };
    if (std::any_of(m_objects.begin(), m_objects.end(), conflicts))
        return nullptr;
    return Insert(std::move(object));
}

std::vector<std::string> HandleTable::Names()
{
    std::vector<std::string> names;
    const std::lock_guard lock(m_mutex);
    for (const auto& [handle, object] : m_objects)
        names.push_back(object->Name());
    std::sort(names.begin(), names.end());
    return names;
}

// A value is never given out twice, so a stale handle is always noticed. Like on Windows it is a
// multiple of four.
HANDLE HandleTable::Insert(std::shared_ptr<OpenObject> object)
{
    m_lastHandle += 4;
    const HANDLE handle = reinterpret_cast<HANDLE>(m_lastHandle);
    m_objects.emplace(handle, std::move(object));
    return handle;
}

std::vector<std::string> OpenHandles()
{
    return HandleTable::Instance().Names();
}

} // namespace Pal

// Keeps:   closes a handle of any kind; ERROR_INVALID_HANDLE for what is none, such as one closed
//          before.
// Differs: a handle closed while another thread uses it fails there at once.
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
