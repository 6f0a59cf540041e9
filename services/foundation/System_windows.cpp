#include "platform/System.h"

#include "base/Handle.h"
#include "foundation/NearestExisting.h"
#include "platform/Registry.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include <windows.h>

#include <tlhelp32.h>
#include <winioctl.h>

// In every ntdll.dll, but declared only by the headers for drivers.
extern "C" NTSTATUS NTAPI RtlGetVersion(OSVERSIONINFOW* version);
extern "C" BOOLEAN NTAPI RtlDllShutdownInProgress();

namespace Vorlan::Core
{

namespace
{

struct HandleTraits
{
    using Type = HANDLE;
    static bool IsValid(HANDLE handle) { return handle && handle != INVALID_HANDLE_VALUE; }
    static void Close(HANDLE handle) { CloseHandle(handle); }
};

using UniqueSystemHandle = Platform::UniqueHandle<HandleTraits>;

// The executable of a process; empty when it may not be asked.
QString ExecutableOf(DWORD processId)
{
    const UniqueSystemHandle process(
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    std::array<wchar_t, 32768> path;
    auto length = static_cast<DWORD>(path.size());
    if (!process || !QueryFullProcessImageNameW(process.Get(), 0, path.data(), &length))
        return QString();
    return Platform::TextFromWide({path.data(), length});
}

bool IsThatProcess(const PROCESSENTRY32W& process, const QString& name, const QString& path)
{
    return Platform::TextFromWide(process.szExeFile).compare(name, Qt::CaseInsensitive) == 0 &&
           (path.isEmpty() ||
               ExecutableOf(process.th32ProcessID).compare(path, Qt::CaseInsensitive) == 0);
}

// The device of the volume that holds an existing path, such as "\\?\Volume{...}"; empty when the
// volume has none, like a network share.
std::wstring VolumeDevice(const QString& path)
{
    const std::wstring native = Platform::WideFromText(QDir::toNativeSeparators(path));
    std::array<wchar_t, 32768> root = {};
    std::array<wchar_t, 64> volume = {};
    if (!GetVolumePathNameW(native.c_str(), root.data(), static_cast<DWORD>(root.size())) ||
        !GetVolumeNameForVolumeMountPointW(
            root.data(), volume.data(), static_cast<DWORD>(volume.size())))
        return std::wstring();
    std::wstring device = volume.data();
    device.pop_back(); // with its separator it would name the root folder
    return device;
}

bool HasNoSeekPenalty(const std::wstring& device)
{
    const UniqueSystemHandle disk(CreateFileW(
        device.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
    STORAGE_PROPERTY_QUERY query = {};
    query.PropertyId = StorageDeviceSeekPenaltyProperty;
    query.QueryType = PropertyStandardQuery;
    DEVICE_SEEK_PENALTY_DESCRIPTOR answer = {};
    DWORD size = 0;
    return disk &&
           DeviceIoControl(disk.Get(), IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof query, &answer,
               sizeof answer, &size, nullptr) &&
           size >= sizeof answer && !answer.IncursSeekPenalty;
}

} // namespace

bool IsGreaterOrEqualThen(const Version& version)
{
    OSVERSIONINFOW running = {};
    running.dwOSVersionInfoSize = sizeof running;
    RtlGetVersion(&running);
    return !(version >
             Version{running.dwMajorVersion, running.dwMinorVersion, running.dwBuildNumber, 0});
}

bool IsProcessRunning(const std::string& imageName, const std::string& path)
{
    const QString wantedName = QString::fromStdString(imageName);
    const QString wantedPath =
        path.empty() ? QString()
                     : QDir::toNativeSeparators(QDir::cleanPath(QString::fromStdString(path)));
    const UniqueSystemHandle processes(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W process = {};
    process.dwSize = sizeof process;
    for (BOOL found = Process32FirstW(processes.Get(), &process); found;
         found = Process32NextW(processes.Get(), &process))
    {
        if (IsThatProcess(process, wantedName, wantedPath))
            return true;
    }
    return false;
}

bool IsRunningOnSSD()
{
    std::array<wchar_t, MAX_PATH> folder = {};
    const UINT length = GetWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() &&
           IsPathOnSSD(Platform::TextFromWide({folder.data(), length}).toStdString());
}

bool IsPathOnSSD(const std::string& path)
{
    const QFileInfo existing = Platform::NearestExisting(QString::fromStdString(path));
    const std::wstring device = VolumeDevice(existing.absoluteFilePath());
    return !device.empty() && HasNoSeekPenalty(device);
}

} // namespace Vorlan::Core

namespace Vorlan::Platform
{

std::string MachineId()
{
    const Util::RegistryHelper cryptography(
        {"SOFTWARE\\Microsoft\\Cryptography"}, Util::RegistryHelper::LocalMachine64);
    return cryptography.GetValue("MachineGuid").toStdString();
}

bool MaySetUpWhileLoading()
{
    return false;
}

void KeepLibraryLoaded()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
        reinterpret_cast<LPCWSTR>(&KeepLibraryLoaded), &library);
}

bool IsProcessEnding()
{
    return RtlDllShutdownInProgress() != FALSE;
}

} // namespace Vorlan::Platform
