#include "registry/RegistrySession.h"

#include "registry/RegFileWriter.h"

#include <QtDebug>

#include <cstdlib>

namespace Pal
{

namespace
{

void PrintReports(const std::vector<std::string>& reports)
{
    for (const std::string& report : reports)
        qWarning("%s", report.c_str());
}

// While another thread is inside a call, the files are left as they are.
void CompactAtExit()
{
    std::unique_lock lock(RegistryMutex(), std::try_to_lock);
    if (!lock.owns_lock())
        return;
    const std::shared_ptr<RegistryStore> store = CurrentStore();
    store->CompactAtExit();
    lock.unlock();
    PrintReports(store->File(RegistryRoot::CurrentUser).TakeReports());
    PrintReports(store->File(RegistryRoot::LocalMachine).TakeReports());
}

void CompactWhenTheProcessEnds()
{
    static const int registered = std::atexit(CompactAtExit);
    Q_UNUSED(registered)
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
    const auto record = ValueRecord(RootName(Location().root), Location().path, value);
    return Change(record, [&] { node->SetValue(std::move(value)); });
}

LSTATUS RegistrySession::RemoveValue(const std::u16string& name)
{
    const auto record = RemovedValueRecord(RootName(Location().root), Location().path, name);
    return Change(record, [&] { node->RemoveValue(name); });
}

LSTATUS RegistrySession::MakeKeyAt(const KeyPath& path)
{
    return Change(KeyRecord(RootName(Location().root), path), [&] { MakeKey(Root(), path); });
}

LSTATUS RegistrySession::RemoveKeyAt(const KeyPath& path)
{
    return Change(
        RemovedKeyRecord(RootName(Location().root), path), [&] { RemoveKey(Root(), path); });
}

LSTATUS RegistrySession::Change(
    const std::u16string& record, const std::function<void()>& changeTree)
{
    CompactWhenTheProcessEnds();
    const DWORD appended = File().Append(record);
    if (appended != ERROR_SUCCESS)
    {
        File().ReportFailure("written");
        return static_cast<LSTATUS>(appended);
    }
    changeTree();
    File().CompactIfLarge();
    return ERROR_SUCCESS;
}

} // namespace Pal
