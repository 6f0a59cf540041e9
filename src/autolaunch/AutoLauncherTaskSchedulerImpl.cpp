#include "autolaunch/AutoLauncherTaskSchedulerImpl.h"

#include "base/Handle.h"
#include "platform/Path.h"

#include <shellapi.h>

#include <optional>

namespace Vorlan
{

namespace
{

constexpr DWORD timeLimit = 5000; // milliseconds

// Runs the command elevated. Its exit code, or nothing when it did not start or end in time.
std::optional<DWORD> RunSchtasks(const std::string& parameters)
{
    const std::wstring wideParameters = Core::WstringFromUtf8(parameters);
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpVerb = L"runas";
    info.lpFile = L"schtasks";
    info.lpParameters = wideParameters.c_str();
    info.nShow = SW_HIDE;
    if (!ShellExecuteExW(&info))
        return std::nullopt;

    const Platform::UniqueProcess process(info.hProcess);
    DWORD exitCode = 0;
    if (!process || WaitForSingleObject(process.Get(), timeLimit) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process.Get(), &exitCode))
        return std::nullopt;
    return exitCode;
}

} // namespace

bool AutoLauncherTaskSchedulerImpl::IsRegistered(const std::string& name)
{
    return RunSchtasks("/query /tn " + name) == DWORD{0};
}

bool AutoLauncherTaskSchedulerImpl::Register(
    const std::string& name, const std::string& path, const std::vector<std::string>& arguments)
{
    std::string command = path;
    for (const std::string& argument : arguments)
        command += ' ' + argument;
    return RunSchtasks("/create /sc onlogon /rl highest /tn " + name + " /tr \"" + command + '"')
        .has_value();
}

bool AutoLauncherTaskSchedulerImpl::Unregister(const std::string& name)
{
    return RunSchtasks("/delete /f /tn " + name).has_value();
}

std::vector<std::string> AutoLauncherTaskSchedulerImpl::GetRegisteredNames()
{
    return {};
}

} // namespace Vorlan
