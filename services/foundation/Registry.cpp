#include "platform/Registry.h"

#include "base/Handle.h"
#include "platform/Path.h"

#include <cstring>
#include <optional>
#include <vector>

namespace Vorlan::Util
{

namespace
{

struct Place
{
    RegistryHelper::AccessFlag flag;
    HKEY root;
    REGSAM view;
};

std::vector<Place> Places()
{
    return {{RegistryHelper::CurrentUser64, HKEY_CURRENT_USER, KEY_WOW64_64KEY},
        {RegistryHelper::CurrentUser32, HKEY_CURRENT_USER, KEY_WOW64_32KEY},
        {RegistryHelper::LocalMachine64, HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY},
        {RegistryHelper::LocalMachine32, HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY}};
}

template <typename Number>
QString NumberText(const std::vector<BYTE>& data)
{
    Number number = 0;
    std::memcpy(&number, data.data(), std::min(sizeof number, data.size()));
    return QString::number(number);
}

QString ValueText(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_DWORD)
        return NumberText<quint32>(data);
    if (type == REG_QWORD)
        return NumberText<quint64>(data);
    if (type != REG_SZ && type != REG_EXPAND_SZ)
        return QString();
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    return Platform::TextFromWide(text.substr(0, text.find(L'\0')));
}

std::optional<QString> ReadValue(const Place& place, const QString& keyPath, const QString& name)
{
    Platform::UniqueKey key;
    const std::wstring path = Platform::WideFromText(keyPath);
    if (RegOpenKeyExW(place.root, path.c_str(), 0, KEY_READ | place.view, key.Put()) !=
        ERROR_SUCCESS)
        return std::nullopt;

    const std::wstring wideName = Platform::WideFromText(name);
    std::vector<BYTE> data;
    DWORD type = REG_NONE;
    DWORD size = 0;
    LSTATUS status = RegQueryValueExW(key.Get(), wideName.c_str(), nullptr, &type, nullptr, &size);
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
    {
        data.resize(size + sizeof(wchar_t)); // never an empty buffer, which would only ask the size
        size = static_cast<DWORD>(data.size());
        status = RegQueryValueExW(key.Get(), wideName.c_str(), nullptr, &type, data.data(), &size);
        if (status == ERROR_SUCCESS)
        {
            data.resize(size);
            return ValueText(type, data);
        }
    }
    return std::nullopt;
}

} // namespace

RegistryHelper::RegistryHelper(const QStringList& keyPaths, AccessFlags accessFlags)
    : keys(keyPaths), flags(accessFlags)
{
}

QString RegistryHelper::GetValue(const QString& name) const
{
    return GetValueBeside(name, name);
}

QString RegistryHelper::GetValueBeside(const QString& name, const QString& anchor) const
{
    for (const Place& place : Places())
    {
        if (!flags.testFlag(place.flag))
            continue;
        for (const QString& key : keys)
        {
            if (ReadValue(place, key, anchor))
                return ReadValue(place, key, name).value_or(QString());
        }
    }
    return QString();
}

} // namespace Vorlan::Util
