#include "installer/SilentUninstaller.h"

#include "base/Handle.h"
#include "installer/Shortcuts.h"
#include "platform/Path.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>
#include <thread>

namespace Vorlan
{

namespace
{

constexpr char silentArguments[] = "/S /IGNORE_MUTEX";
constexpr std::chrono::seconds emptyLimit(60);
constexpr std::chrono::seconds removalLimit(10);

BOOL StartProcess(PROCESS_INFORMATION& process, const std::wstring& program,
    const std::wstring& arguments, const std::wstring& workingFolder, bool withoutWindow,
    bool useStandardHandles)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (useStandardHandles)
    {
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
        startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    }
    std::wstring commandLine = program + L' ' + arguments;
    return CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, useStandardHandles,
        withoutWindow ? CREATE_NO_WINDOW : 0, nullptr, workingFolder.c_str(), &startup, &process);
}

void WaitForEnd(const PROCESS_INFORMATION& started)
{
    const Platform::UniqueProcess process(started.hProcess);
    const Platform::UniqueProcess thread(started.hThread);
    if (WaitForSingleObject(process.Get(), INFINITE) != WAIT_OBJECT_0)
        throw std::runtime_error("Waiting for the calling application is failed. Something must "
                                 "have gone terribly wrong.");
}

bool HoldsEntries(const QString& folder)
{
    return QDir(folder).exists() &&
           !QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty();
}

void WaitUntilEmpty(const QString& folder, const WaitClock& clock)
{
    const auto start = clock.now();
    while (HoldsEntries(folder) && clock.now() - start < emptyLimit)
        clock.sleep();
}

void WaitUntilGone(const QString& folder, const WaitClock& clock)
{
    const auto start = clock.now();
    while (QDir(folder).exists() && clock.now() - start < removalLimit)
    {
        qDebug() << "Still exists:" << folder;
        clock.sleep();
    }
}

} // namespace

WaitClock SystemClock()
{
    return {std::chrono::steady_clock::now,
        [] { std::this_thread::sleep_for(std::chrono::microseconds(100)); }};
}

void RunUninstaller(QString uninstaller, bool needsElevation, const WaitClock& clock)
{
    const QString folder = QDir::toNativeSeparators(QFileInfo(uninstaller).absolutePath());
    const QString script = folder + QDir::separator() + silentUninstallScript;
    QString arguments = silentArguments;
    if (QFile::exists(script))
    {
        uninstaller = GetStandardLocation(StandardLocation::System) + "\\cmd.exe";
        arguments = QString("/C \"\"%1\" %2\"").arg(script, silentArguments);
    }

    PROCESS_INFORMATION process = {};
    const BOOL isStarted = StartProcess(process, Platform::WideFromText(uninstaller),
        Platform::WideFromText(arguments), Platform::WideFromText(QDir::currentPath()), true,
        false);
    qInfo().nospace().noquote() << "EXECUTE \"" << uninstaller << "\" " << arguments << " -> "
                                << isStarted;
    if (isStarted)
        WaitForEnd(process);
    else
        qInfo() << "Failed to start uninstaller " << uninstaller;

    if (needsElevation)
        WaitUntilEmpty(folder, clock);
    WaitUntilGone(folder, clock);
}

} // namespace Vorlan
