#include "installer/ProcessTermination.h"

#include "base/Handle.h"
#include "installer/InstallerMediator.h"
#include "platform/Path.h"
#include "platform/System.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <psapi.h>

#include <array>
#include <stdexcept>

namespace Vorlan
{

namespace
{

constexpr std::size_t processLimit = 10240; // processes beyond it are not seen
constexpr DWORD waitLimit = 5000;           // milliseconds
constexpr UINT exitCode = 1;
constexpr DWORD access =
    PROCESS_TERMINATE | PROCESS_VM_READ | PROCESS_QUERY_INFORMATION | SYNCHRONIZE;
constexpr char companionProgram[] = "RouterApplication.exe";

// Path of a process's executable; empty when it cannot be read.
QString ExecutablePath(HANDLE process)
{
    std::array<wchar_t, MAX_PATH> path = {};
    const DWORD length =
        K32GetModuleFileNameExW(process, nullptr, path.data(), static_cast<DWORD>(path.size()));
    return Platform::TextFromWide(std::wstring(path.data(), length));
}

void EndProcess(HANDLE process, const QFileInfo& executable)
{
    if (!TerminateProcess(process, exitCode))
    {
        qInfo() << "Failed to terminate " << executable.fileName()
                << " process. Error code = " << GetLastError();
        throw std::runtime_error("Failed TerminateProcess!");
    }
    if (WaitForSingleObject(process, waitLimit) != WAIT_OBJECT_0)
    {
        qInfo() << "Error waiting for process " << executable.fileName()
                << " exit, error code = " << GetLastError();
        throw std::runtime_error("Failed waiting TerminateProcess!");
    }
}

// Ends the process when its executable lies directly in the folder. One that cannot be opened, or
// that has ended meanwhile, is passed over.
void EndProcessOf(DWORD id, const QString& canonicalFolder)
{
    const Platform::UniqueProcess process(OpenProcess(access, FALSE, id));
    const QString path = process ? ExecutablePath(process.Get()) : QString();
    if (path.isEmpty())
        return;
    const QFileInfo executable(path);
    if (executable.canonicalPath() != canonicalFolder)
        return;
    qInfo() << "Found running process in a folder:" << id << " : " << executable.absoluteFilePath();
    EndProcess(process.Get(), executable);
    qInfo() << "Process " << executable.absoluteFilePath() << " terminated.";
}

void KillProcessesInFolder(const QString& folder, DWORD exempt)
{
    if (!QFile::exists(folder))
        return;
    qInfo() << "Terminating any process running in installation folder: " << folder;

    std::array<DWORD, processLimit> ids = {};
    DWORD bytes = 0;
    if (!K32EnumProcesses(ids.data(), sizeof ids, &bytes))
    {
        qInfo() << "EnumProcesses failed with error " << GetLastError();
        return;
    }
    const QString canonicalFolder = QDir(folder).canonicalPath();
    for (std::size_t i = 0; i < bytes / sizeof(DWORD); ++i)
    {
        if (ids[i] != 0 && ids[i] != exempt)
            EndProcessOf(ids[i], canonicalFolder);
    }
}

} // namespace

void KillAllProcessesInFolder(const QString& folder)
{
    KillProcessesInFolder(folder, 0);
}

void KillOtherProcessesInFolder(const QString& folder)
{
    KillProcessesInFolder(folder, static_cast<DWORD>(QCoreApplication::applicationPid()));
}

void InstallerMediator::TerminateApps()
{
    const QString path =
        Platform::ToNativePath(QCoreApplication::applicationDirPath() + '\\' + companionProgram);
    const std::string nativePath = QDir::toNativeSeparators(path).toStdString();
    if (!Core::IsProcessRunning(companionProgram, nativePath))
        return;
    settingsManager->SetKilledByInstaller(true);
    QProcess::execute("taskkill", {"/IM", companionProgram, "/F"});
}

} // namespace Vorlan
