#include "registry/RegistrySession.h"

#include <QtDebug>

namespace Pal
{

namespace
{

void PrintReports(const std::vector<std::string>& reports)
{
    for (const std::string& report : reports)
        qWarning("%s", report.c_str());
}

} // namespace

std::mutex& RegistryMutex()
{
    static std::mutex& mutex = *new std::mutex; // never destroyed: used during exit
    return mutex;
}

RegistrySession::RegistrySession(HKEY handle, REGSAM rights, Access access)
    : processLock(RegistryMutex()), key(FindOpenKey(handle)), error(Open(rights, access))
{
}

RegistrySession::~RegistrySession()
{
    fileLock = Descriptor();
    const std::vector<std::string> reports =
        key ? File().TakeReports() : std::vector<std::string>{};
    processLock.unlock();
    PrintReports(reports);
}

LSTATUS RegistrySession::Open(REGSAM rights, Access access)
{
    if (!key)
        return ERROR_INVALID_HANDLE;
    if (!key->Allows(rights))
        return ERROR_ACCESS_DENIED;
    const DWORD entered = Location().store->Enter(Location().root, access, fileLock);
    if (entered != ERROR_SUCCESS)
        return static_cast<LSTATUS>(entered);
    node = key->Node();
    return node ? ERROR_SUCCESS : ERROR_KEY_DELETED;
}

LSTATUS RegistrySession::SetValue(RegistryValue value)
{
    const RegistryValue* former = node->Value(value.name);
    if (former && former->type == value.type && former->data == value.data)
        return ERROR_SUCCESS;
    node->SetValue(std::move(value));
    return Save();
}

LSTATUS RegistrySession::RemoveValue(const std::u16string& name)
{
    node->RemoveValue(name);
    return Save();
}

LSTATUS RegistrySession::MakeKeyAt(const KeyPath& path)
{
    MakeKey(Root(), path);
    return Save();
}

LSTATUS RegistrySession::RemoveKeyAt(const KeyPath& path)
{
    RemoveKey(Root(), path);
    return Save();
}

LSTATUS RegistrySession::Save()
{
    const DWORD written = File().Write();
    if (written != ERROR_SUCCESS)
        File().ReportFailure("written");
    return static_cast<LSTATUS>(written);
}

} // namespace Pal
