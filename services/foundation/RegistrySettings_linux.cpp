#include "registry/RegistrySettings.h"

#include <string>
#include <utility>
#include <vector>

#include <QtDebug>

#include <windows.h>

#include "foundation/RegistryVariant_linux.h"

namespace Vorlan
{

namespace
{

class RegistryKey
{
public:
    explicit RegistryKey(HKEY key = nullptr) : m_key(key) {}
    RegistryKey(RegistryKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept
    {
        std::swap(m_key, other.m_key);
        return *this;
    }
    ~RegistryKey()
    {
        if (m_key)
            RegCloseKey(m_key);
    }

    HKEY Get() const { return m_key; }
    explicit operator bool() const { return m_key != nullptr; }

private:
    HKEY m_key;
};

constexpr REGSAM readAndWrite = KEY_READ | KEY_WRITE;

RegistryKey Open(HKEY parent, const QString& path, REGSAM access)
{
    HKEY key = nullptr;
    const LSTATUS error = RegOpenKeyExW(parent, path.toStdWString().c_str(), 0, access, &key);
    return RegistryKey(error == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey Create(HKEY parent, const QString& path)
{
    HKEY key = nullptr;
    const LSTATUS error = RegCreateKeyExW(parent, path.toStdWString().c_str(), 0, nullptr,
        REG_OPTION_NON_VOLATILE, readAndWrite, nullptr, &key, nullptr);
    return RegistryKey(error == ERROR_SUCCESS ? key : nullptr);
}

// "/" separates the caller's names and a backslash the registry's: each becomes the other.
QString SwapSeparators(QString name)
{
    for (QChar& character : name)
    {
        if (character == '/')
            character = '\\';
        else if (character == '\\')
            character = '/';
    }
    return name;
}

QString NormalizedKey(const QString& key)
{
    return key.split('/', Qt::SkipEmptyParts).join('/');
}

// A value's place in registry terms, seen from the settings' own key.
struct ValuePlace
{
    explicit ValuePlace(const QString& key)
    {
        const QString path = SwapSeparators(key);
        const int nameStart = path.lastIndexOf('\\') + 1;
        keyPath = path.left(nameStart);
        name = path.mid(nameStart);
        if (name == "Default" || name == ".")
            name.clear();
    }

    std::wstring WideName() const { return name.toStdWString(); }

    QString keyPath;
    QString name; // empty for the default value
};

// Another process may make the value longer between the two questions.
bool ReadValue(HKEY key, const std::wstring& name, StoredValue& stored)
{
    LSTATUS error = ERROR_MORE_DATA;
    while (error == ERROR_MORE_DATA)
    {
        DWORD size = 0;
        error = RegQueryValueExW(key, name.c_str(), nullptr, nullptr, nullptr, &size);
        if (error != ERROR_SUCCESS)
            return false;
        stored.data.resize(static_cast<int>(size));
        error = RegQueryValueExW(key, name.c_str(), nullptr, &stored.type,
            reinterpret_cast<BYTE*>(stored.data.data()), &size);
        if (error == ERROR_SUCCESS)
            stored.data.resize(static_cast<int>(size));
    }
    return error == ERROR_SUCCESS;
}

enum class Children
{
    Values,
    SubKeys
};

LSTATUS ChildName(HKEY key, Children kind, DWORD index, std::wstring& name)
{
    std::vector<wchar_t> buffer(16384);
    auto length = static_cast<DWORD>(buffer.size());
    const LSTATUS error =
        kind == Children::Values
            ? RegEnumValueW(key, index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr)
            : RegEnumKeyExW(key, index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (error == ERROR_SUCCESS)
        name.assign(buffer.data(), length);
    return error;
}

std::vector<std::wstring> ChildNames(HKEY key, Children kind)
{
    std::vector<std::wstring> names;
    std::wstring name;
    for (DWORD index = 0; ChildName(key, kind, index, name) == ERROR_SUCCESS; ++index)
        names.push_back(name);
    return names;
}

void WarnOf(const char* failure, const QString& key, LSTATUS error)
{
    qWarning("%s: \"%s\", error %d", failure, qPrintable(key), static_cast<int>(error));
}

void DeleteSubKeys(HKEY key)
{
    for (const std::wstring& name : ChildNames(key, Children::SubKeys))
    {
        if (const RegistryKey child = Open(key, QString::fromStdWString(name), readAndWrite))
            DeleteSubKeys(child.Get());
        const LSTATUS error = RegDeleteKeyW(key, name.c_str());
        if (error != ERROR_SUCCESS)
            WarnOf("Registry key cannot be deleted", QString::fromStdWString(name), error);
    }
}

void DeleteValues(HKEY key)
{
    for (const std::wstring& name : ChildNames(key, Children::Values))
    {
        const LSTATUS error = RegDeleteValueW(key, name.c_str());
        if (error != ERROR_SUCCESS)
            WarnOf("Registry value cannot be deleted", QString::fromStdWString(name), error);
    }
}

} // namespace

class RegistrySettings::Implementation
{
public:
    Implementation(QSettings::Scope scope, const QString& organisation, const QString& application)
        : root(scope == QSettings::UserScope ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE)
    {
        if (organisation.isEmpty())
        {
            root = nullptr;
            status = QSettings::AccessError;
            return;
        }
        const QString name = application.isEmpty() ? "OrganizationDefaults" : application;
        path = "Software\\" + organisation + '\\' + name;
    }

    explicit Implementation(QString keyPath) : root(nullptr)
    {
        if (keyPath.startsWith('\\'))
            keyPath.remove(0, 1);
        const QString rootName = keyPath.section('\\', 0, 0);
        if (rootName == "HKEY_CURRENT_USER" || rootName == "HKCU")
            root = HKEY_CURRENT_USER;
        else if (rootName == "HKEY_LOCAL_MACHINE" || rootName == "HKLM")
            root = HKEY_LOCAL_MACHINE;
        path = keyPath.mid(rootName.size() + 1);
    }

    ~Implementation()
    {
        if (!deleteWhenDone || !WriteHandle())
            return;
        const LSTATUS error = RegDeleteKeyW(handle.Get(), L"");
        if (error != ERROR_SUCCESS)
            WarnOf("Registry key cannot be deleted", path, error);
    }

    // Null when there is no key and none may be made.
    HKEY Handle()
    {
        if (!handle && root)
        {
            handle = Create(root, path);
            readOnly = !handle;
            if (readOnly)
                handle = Open(root, path, KEY_READ);
        }
        return handle.Get();
    }

    HKEY WriteHandle() { return Handle() && !readOnly ? handle.Get() : nullptr; }

    QString FullKey(const QString& key) const { return groupPrefix + NormalizedKey(key); }

    QStringList ChildrenOfGroup(Children kind)
    {
        QStringList names;
        const RegistryKey key =
            Handle() ? Open(handle.Get(), SwapSeparators(groupPrefix), KEY_READ) : RegistryKey();
        if (!key)
            return names;
        for (const std::wstring& name : ChildNames(key.Get(), kind))
            names.append(name.empty() ? "." : SwapSeparators(QString::fromStdWString(name)));
        names.sort();
        return names;
    }

    bool Read(const QString& givenKey, StoredValue& stored)
    {
        const ValuePlace place(FullKey(givenKey));
        const RegistryKey key =
            Handle() ? Open(handle.Get(), place.keyPath, KEY_READ) : RegistryKey();
        return key && ReadValue(key.Get(), place.WideName(), stored);
    }

    LSTATUS Write(const QString& fullKey, const QVariant& value)
    {
        const ValuePlace place(fullKey);
        const RegistryKey key = WriteHandle() ? Create(handle.Get(), place.keyPath) : RegistryKey();
        if (!key)
            return ERROR_ACCESS_DENIED;
        const std::optional<StoredValue> stored = ToStored(value);
        if (!stored)
            return ERROR_NOT_SUPPORTED;
        return RegSetValueExW(key.Get(), place.WideName().c_str(), 0, stored->type,
            reinterpret_cast<const BYTE*>(stored->data.constData()),
            static_cast<DWORD>(stored->data.size()));
    }

    void RemoveValue(const QString& fullKey)
    {
        const ValuePlace place(fullKey);
        const RegistryKey key = Open(handle.Get(), place.keyPath, readAndWrite);
        if (!key)
            return;
        const LSTATUS error = RegDeleteValueW(key.Get(), place.WideName().c_str());
        if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND)
            WarnOf("Registry value cannot be deleted", fullKey, error);
    }

    void RemoveSubKey(const QString& fullKey)
    {
        const QString subKey = SwapSeparators(fullKey);
        const RegistryKey key = Open(handle.Get(), subKey, readAndWrite);
        if (!key)
            return;
        DeleteSubKeys(key.Get());
        const LSTATUS error = RegDeleteKeyW(handle.Get(), subKey.toStdWString().c_str());
        if (error != ERROR_SUCCESS)
            WarnOf("Registry key cannot be deleted", fullKey, error);
    }

    void Clear()
    {
        DeleteSubKeys(handle.Get());
        DeleteValues(handle.Get());
        deleteWhenDone = true;
    }

    HKEY root; // null: there is no key that could be opened
    QString path;
    RegistryKey handle;
    bool readOnly = false;
    bool deleteWhenDone = false;
    QStringList groups;
    QString groupPrefix; // of all groups, each with "/" after it
    QSettings::Status status = QSettings::NoError;
};

RegistrySettings::RegistrySettings(
    QSettings::Scope scope, const QString& organisation, const QString& application)
    : implementation(std::make_unique<Implementation>(scope, organisation, application))
{
}

RegistrySettings::RegistrySettings(const QString& keyPath)
    : implementation(std::make_unique<Implementation>(keyPath))
{
}

RegistrySettings::~RegistrySettings() = default;

QVariant RegistrySettings::value(const QString& key, const QVariant& defaultValue) const
{
    if (key.isEmpty())
    {
        qWarning("RegistrySettings::value: empty key");
        return {};
    }
    StoredValue stored;
    return implementation->Read(key, stored) ? FromStored(stored) : defaultValue;
}

void RegistrySettings::setValue(const QString& key, const QVariant& value)
{
    if (key.isEmpty())
    {
        qWarning("RegistrySettings::setValue: empty key");
        return;
    }
    const LSTATUS error = implementation->Write(implementation->FullKey(key), value);
    if (error == ERROR_SUCCESS)
    {
        implementation->deleteWhenDone = false;
        return;
    }
    WarnOf("Registry value cannot be written", key, error);
    implementation->status = QSettings::AccessError;
}

bool RegistrySettings::contains(const QString& key) const
{
    StoredValue stored;
    return implementation->Read(key, stored);
}

void RegistrySettings::remove(const QString& key)
{
    const QString name = NormalizedKey(key);
    const QString fullKey = name.isEmpty() ? group() : implementation->FullKey(name);
    if (!implementation->WriteHandle())
    {
        implementation->status = QSettings::AccessError;
        return;
    }
    if (fullKey.isEmpty())
    {
        implementation->Clear();
        return;
    }
    implementation->RemoveValue(fullKey);
    implementation->RemoveSubKey(fullKey);
}

QStringList RegistrySettings::childKeys() const
{
    return implementation->ChildrenOfGroup(Children::Values);
}

QStringList RegistrySettings::childGroups() const
{
    return implementation->ChildrenOfGroup(Children::SubKeys);
}

QString RegistrySettings::fileName() const
{
    if (!implementation->root)
        return {};
    const bool user = implementation->root == HKEY_CURRENT_USER;
    return (user ? "\\HKEY_CURRENT_USER\\" : "\\HKEY_LOCAL_MACHINE\\") + implementation->path;
}

void RegistrySettings::beginGroup(const QString& prefix)
{
    const QString name = NormalizedKey(prefix);
    implementation->groups.append(name);
    if (!name.isEmpty())
        implementation->groupPrefix += name + '/';
}

void RegistrySettings::endGroup()
{
    if (implementation->groups.isEmpty())
    {
        qWarning("RegistrySettings::endGroup: no group was begun");
        return;
    }
    const QString name = implementation->groups.takeLast();
    if (!name.isEmpty())
        implementation->groupPrefix.chop(name.size() + 1);
}

QString RegistrySettings::group() const
{
    return implementation->groupPrefix.chopped(implementation->groupPrefix.isEmpty() ? 0 : 1);
}

QSettings::Status RegistrySettings::status() const
{
    return implementation->status;
}

// Writes are not buffered.
void RegistrySettings::sync() {}

} // namespace Vorlan
