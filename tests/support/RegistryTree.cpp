#include "support/RegistryTree.h"

#include "base/Handle.h"
#include "platform/Path.h"

#include <cstring>
#include <vector>

using Vorlan::Platform::TextFromWide;
using Vorlan::Platform::UniqueKey;
using Vorlan::Platform::WideFromText;

namespace
{

constexpr std::size_t longestName = 16384;

QString DataText(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_DWORD)
    {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return QString("REG_DWORD %1").arg(number);
    }
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    const QString name = type == REG_SZ ? "REG_SZ" : QString("type %1").arg(type);
    return name + ' ' + TextFromWide(text.substr(0, text.find(L'\0')));
}

void AddValues(HKEY key, const QString& path, QStringList& lines)
{
    std::vector<wchar_t> name(longestName);
    std::vector<BYTE> data(1 << 16);
    DWORD index = 0;
    for (;; ++index)
    {
        auto nameLength = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        if (RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type, data.data(),
                &size) != ERROR_SUCCESS)
            break;
        const QString text = nameLength == 0 ? "@" : TextFromWide({name.data(), nameLength});
        lines += path + ": " + text + " = " +
                 DataText(type, {data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size)});
    }
    if (index == 0)
        lines += path + ':';
}

void AddKey(HKEY key, const QString& path, QStringList& lines)
{
    AddValues(key, path, lines);
    std::vector<wchar_t> name(longestName);
    for (DWORD index = 0;; ++index)
    {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        UniqueKey child;
        if (RegOpenKeyExW(key, name.data(), 0, KEY_READ, child.Put()) == ERROR_SUCCESS)
            AddKey(child.Get(), path + (path.isEmpty() ? "" : "\\") + TextFromWide(name.data()),
                lines);
    }
}

} // namespace

QStringList RegistryTree(const QString& rootName, const QString& keyPath)
{
    const HKEY root = rootName == "HKEY_LOCAL_MACHINE" ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    UniqueKey key;
    QStringList lines;
    if (RegOpenKeyExW(root, WideFromText(keyPath).c_str(), 0, KEY_READ, key.Put()) == ERROR_SUCCESS)
        AddKey(key.Get(), QString(), lines);
    lines.removeAll(":");
    lines.sort();
    return lines;
}
