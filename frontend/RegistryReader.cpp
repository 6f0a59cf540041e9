#include "RegistryReader.h"

#include "base/Handle.h"

#include <vector>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr DWORD longestKeyName = 256; // with the terminator

Platform::UniqueKey OpenKey(QSettings::Scope scope, const QString& key)
{
    const HKEY root = scope == QSettings::SystemScope ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    Platform::UniqueKey opened;
    RegOpenKeyExW(root, key.toStdWString().c_str(), 0, KEY_READ, opened.Put());
    return opened;
}

} // namespace

QString ReadRegistryText(QSettings::Scope scope, const QString& key, const QString& name)
{
    const Platform::UniqueKey opened = OpenKey(scope, key);
    const std::wstring valueName = name.toStdWString();
    DWORD type = 0;
    DWORD size = 0; // bytes
    if (!opened ||
        RegQueryValueExW(opened.Get(), valueName.c_str(), nullptr, &type, nullptr, &size) !=
            ERROR_SUCCESS ||
        type != REG_SZ)
        return {};
    std::vector<wchar_t> text(size / sizeof(wchar_t) + 1);
    if (RegQueryValueExW(opened.Get(), valueName.c_str(), nullptr, nullptr,
            reinterpret_cast<BYTE*>(text.data()), &size) != ERROR_SUCCESS)
        return {};
    return QString::fromWCharArray(text.data());
}

QStringList ReadRegistryKeys(QSettings::Scope scope, const QString& key)
{
    const Platform::UniqueKey opened = OpenKey(scope, key);
    QStringList names;
    wchar_t name[longestKeyName];
    DWORD length = longestKeyName;
    for (DWORD index = 0; opened && RegEnumKeyExW(opened.Get(), index, name, &length, nullptr,
                                        nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index)
    {
        names += QString::fromWCharArray(name, static_cast<int>(length));
        length = longestKeyName;
    }
    return names;
}

} // namespace Vorlan::FrontEnd
