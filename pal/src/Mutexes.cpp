// Named mutexes, by which a process tells others that it is running.
//
// A mutex is a file of the machine; each handle holds a shared lock on it, which the system
// releases when the process ends. A second lock makes the test for other handles and the new
// handle's lock one atomic step.
#include <windows.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "FileLock.h"
#include "HandleTable.h"
#include "LastError.h"
#include "Machine.h"
#include "WideText.h"

#include <QUrl>

#include <Pal.h>

#include <cerrno>
#include <string_view>

#include <fcntl.h>
#include <sys/file.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

class Mutex : public OpenObject
{
public:
    Mutex(std::string fileName, Descriptor lock) : name(std::move(fileName)), file(std::move(lock))
    {
    }

    std::string Name() const override { return "mutex " + name; }

private:
    const std::string name;
    const Descriptor file;
};

DWORD FileNameOf(LPCWSTR name, std::string& fileName)
{
    constexpr std::wstring_view local = L"Local\\";
    std::wstring_view text = name ? name : L"";
    if (text.substr(0, local.size()) == local)
        text.remove_prefix(local.size());
    if (text.empty())
        return ERROR_NOT_SUPPORTED;
    const QString shown = QString::fromStdU16String(Utf16FromWide(text));
    fileName = QUrl::toPercentEncoding(shown).toStdString();
    return ERROR_SUCCESS;
}

// Locks the mutex's file for a new handle; existed: whether there were others.
DWORD Join(const std::string& fileName, Descriptor& file, bool& existed)
{
    const fs::path folder = MutexFolder(MachineRoot());
    const Descriptor guard = OpenLockFile(folder / "lock", O_CREAT);
    DWORD error = guard.IsOpen() ? LockFile(guard, LOCK_EX) : ErrorFromErrno(errno);
    if (error != ERROR_SUCCESS)
        return error;
    file = OpenLockFile(folder / ("named " + fileName), O_CREAT);
    if (!file.IsOpen())
        return ErrorFromErrno(errno);
    bool taken = false;
    error = TryLockFile(file, taken);
    existed = !taken;
    return error == ERROR_SUCCESS ? LockFile(file, LOCK_SH) : error;
}

HANDLE CreateNamedMutex(LPCWSTR name)
{
    std::string fileName;
    Descriptor file;
    bool existed = false;
    DWORD error = FileNameOf(name, fileName);
    if (error == ERROR_SUCCESS)
        error = EnterMachine();
    if (error == ERROR_SUCCESS)
        error = Join(fileName, file, existed);
    SetLastError(error == ERROR_SUCCESS && existed ? ERROR_ALREADY_EXISTS : error);
    if (error != ERROR_SUCCESS)
        return nullptr;
    return HandleTable::Instance().Add(std::make_shared<Mutex>(fileName, std::move(file)));
}

} // namespace

} // namespace Pal

// Keeps:   a mutex exists as long as any process of this machine has a handle for it, however the
//          processes end. Success sets the last error to zero, or to ERROR_ALREADY_EXISTS if the
//          mutex existed. The prefix "Local\" changes nothing.
// Differs: names may hold any character and have about 250 bytes at most.
// Refuses: ownership, security attributes, a mutex without a name.
HANDLE CreateMutexW(LPSECURITY_ATTRIBUTES mutexAttributes, BOOL initialOwner, LPCWSTR name)
{
    if (Pal::FaultHits(__func__))
        return nullptr;
    if (!mutexAttributes && !initialOwner)
        return Pal::CreateNamedMutex(name);
    SetLastError(ERROR_NOT_SUPPORTED);
    return nullptr;
}
