#include "autolaunch/AutoLauncherImpl.h"

#include "platform/Path.h"

#include <algorithm>
#include <array>

namespace Vorlan
{

namespace
{

constexpr wchar_t runKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\";

std::string CommandLine(const std::string& path, const std::vector<std::string>& arguments)
{
    std::string command = '"' + path + '"';
    std::replace(command.begin(), command.end(), '/', '\\');
    for (const std::string& argument : arguments)
        command += ' ' + argument;
    return command;
}

} // namespace

AutoLauncherImpl::AutoLauncherImpl(QSettings::Scope scope)
{
    const HKEY root = scope == QSettings::SystemScope ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    RegOpenKeyExW(root, runKey, 0, KEY_ALL_ACCESS, key.Put());
}

bool AutoLauncherImpl::IsRegistered(const std::string& name)
{
    const std::vector<std::string> names = GetRegisteredNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool AutoLauncherImpl::Register(
    const std::string& name, const std::string& path, const std::vector<std::string>& arguments)
{
    if (!key)
        return false;
    const std::wstring wideName = Core::WstringFromUtf8(name);
    const std::wstring command = Core::WstringFromUtf8(CommandLine(path, arguments));
    // Without its terminating zero, which readers of the registry supply.
    return RegSetValueExW(key.Get(), wideName.c_str(), 0, REG_SZ,
               reinterpret_cast<const BYTE*>(command.c_str()),
               static_cast<DWORD>(command.size() * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool AutoLauncherImpl::Unregister(const std::string& name)
{
    return key && RegDeleteValueW(key.Get(), Core::WstringFromUtf8(name).c_str()) == ERROR_SUCCESS;
}

std::vector<std::string> AutoLauncherImpl::GetRegisteredNames()
{
    std::vector<std::string> names;
    std::array<wchar_t, 260> name = {};
    for (DWORD index = 0; key; ++index)
    {
        DWORD length = static_cast<DWORD>(name.size());
        if (RegEnumValueW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr,
                nullptr) != ERROR_SUCCESS)
            break;
        names.push_back(Core::Utf8FromWstring(std::wstring(name.data(), length)));
    }
    return names;
}

} // namespace Vorlan
