#include "FileHolders.h"

#include "HolderProcess.h"
#include "base/Handle.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <map>

#include <windows.h>

#include <psapi.h>
#include <restartmanager.h>

namespace Vorlan::FrontEnd
{
namespace
{

using Holders = std::map<qint64, FileHolder>;

constexpr std::size_t processLimit = 10240; // processes beyond it are not seen
constexpr std::size_t pathLimit = 32768;
constexpr std::size_t filesAtOnce = 500;

QString ImageOf(DWORD processId)
{
    const Platform::UniqueProcess process(
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    std::vector<wchar_t> path(pathLimit);
    auto length = static_cast<DWORD>(path.size());
    if (!process || !QueryFullProcessImageNameW(process.Get(), 0, path.data(), &length))
        return {};
    return QDir::fromNativeSeparators(
        QString::fromWCharArray(path.data(), static_cast<int>(length)));
}

struct WindowSearch
{
    DWORD processId;
    bool isFound;
};

BOOL CALLBACK FindWindowOf(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    search.isFound = search.isFound || (owner == search.processId && IsWindowVisible(window));
    return search.isFound ? FALSE : TRUE;
}

bool HasWindow(DWORD processId)
{
    WindowSearch search{processId, false};
    EnumWindows(&FindWindowOf, reinterpret_cast<LPARAM>(&search));
    return search.isFound;
}

FileHolder Describe(DWORD processId)
{
    FileHolder holder;
    holder.processId = processId;
    holder.startTime = StartTimeOf(processId);
    holder.image = ImageOf(processId);
    holder.name = QFileInfo(holder.image).fileName();
    holder.hasWindow = HasWindow(processId);
    return holder;
}

// The programs that run from this file or folder.
void AddByImage(const QString& place, Holders& holders)
{
    std::array<DWORD, processLimit> ids = {};
    DWORD bytes = 0;
    if (!K32EnumProcesses(ids.data(), sizeof ids, &bytes))
        qWarning() << "The running programs cannot be listed, error" << GetLastError();
    for (std::size_t index = 0; index < bytes / sizeof(DWORD); ++index)
    {
        const QString image = QFileInfo(ImageOf(ids[index])).canonicalFilePath();
        if (image.compare(place, Qt::CaseInsensitive) == 0 ||
            image.startsWith(place + '/', Qt::CaseInsensitive))
            holders.emplace(ids[index], Describe(ids[index]));
    }
}

// A session of the system's Restart Manager, which knows who holds a file.
class RestartManager
{
public:
    RestartManager()
    {
        std::array<wchar_t, CCH_RM_SESSION_KEY + 1> key = {};
        Check(RmStartSession(&session, 0, key.data()), "RmStartSession");
        isOpen = !hasFailed;
    }
    ~RestartManager()
    {
        if (isOpen)
            RmEndSession(session);
    }
    RestartManager(const RestartManager&) = delete;
    RestartManager& operator=(const RestartManager&) = delete;

    void Register(const std::vector<std::wstring>& files)
    {
        std::vector<LPCWSTR> names;
        for (const std::wstring& file : files)
            names.push_back(file.c_str());
        if (!hasFailed && !names.empty())
            Check(RmRegisterResources(session, static_cast<UINT>(names.size()), names.data(), 0,
                      nullptr, 0, nullptr),
                "RmRegisterResources");
    }

    // Empty where the system does not say.
    std::vector<RM_PROCESS_INFO> Programs()
    {
        std::vector<RM_PROCESS_INFO> programs;
        DWORD result = hasFailed ? ERROR_SUCCESS : ERROR_MORE_DATA;
        for (int attempt = 0; attempt < 3 && result == ERROR_MORE_DATA; ++attempt)
        {
            UINT needed = 0;
            auto count = static_cast<UINT>(programs.size());
            DWORD reasons = 0;
            result = RmGetList(session, &needed, &count, programs.data(), &reasons);
            programs.resize(result == ERROR_MORE_DATA ? needed : count);
        }
        Check(result, "RmGetList");
        return hasFailed ? std::vector<RM_PROCESS_INFO>() : programs;
    }

private:
    void Check(DWORD result, const char* call)
    {
        if (result == ERROR_SUCCESS)
            return;
        hasFailed = true;
        qWarning() << "Who holds files is not known in full:" << call << "ended with" << result;
    }

    DWORD session = 0;
    bool isOpen = false;
    bool hasFailed = false;
};

std::vector<std::wstring> FilesOf(const QString& place)
{
    std::vector<std::wstring> files;
    if (QFileInfo(place).isFile())
        files.push_back(QDir::toNativeSeparators(place).toStdWString());
    QDirIterator file(
        place, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (file.hasNext())
        files.push_back(QDir::toNativeSeparators(file.next()).toStdWString());
    return files;
}

FileHolder Describe(const RM_PROCESS_INFO& program)
{
    FileHolder holder = Describe(program.Process.dwProcessId);
    const FILETIME& start = program.Process.ProcessStartTime;
    holder.startTime = quint64{start.dwHighDateTime} << 32 | start.dwLowDateTime;
    const QString name = QString::fromWCharArray(program.strAppName);
    holder.name = name.isEmpty() ? holder.name : name;
    holder.isCritical = program.ApplicationType == RmCritical ||
                        program.ApplicationType == RmService ||
                        program.ApplicationType == RmExplorer;
    return holder;
}

void AddByRestartManager(const QString& place, Holders& holders)
{
    RestartManager manager;
    const std::vector<std::wstring> files = FilesOf(place);
    for (std::size_t first = 0; first < files.size(); first += filesAtOnce)
    {
        const std::size_t last = std::min(files.size(), first + filesAtOnce);
        manager.Register({files.begin() + static_cast<std::ptrdiff_t>(first),
            files.begin() + static_cast<std::ptrdiff_t>(last)});
    }
    for (const RM_PROCESS_INFO& program : manager.Programs())
        holders[program.Process.dwProcessId] = Describe(program);
}

} // namespace

std::vector<FileHolder> FindFileHolders(const QString& path)
{
    std::vector<FileHolder> found;
    const QString place = QFileInfo(path).canonicalFilePath();
    if (place.isEmpty())
        return found;
    Holders holders;
    AddByImage(place, holders);
    AddByRestartManager(place, holders);
    for (const qint64 own : OwnProcessIds())
        holders.erase(own);
    for (const auto& [id, holder] : holders)
        found.push_back(holder);
    return found;
}

} // namespace Vorlan::FrontEnd
