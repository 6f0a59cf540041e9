#pragma once

#include <memory>

#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace Vorlan
{

/// Settings in one registry key, with the behaviour of QSettings in native format on Windows and
/// its fallbacks off: exactly the named key is read and written, on both systems.
///
/// Names. "/" in a key leads into a sub-key; a backslash in a registry name shows as "/" and the
/// other way round. "Default" and "." name a key's default value, and childKeys() lists it as ".".
/// Names ignore case and keep the case they were made with. An empty key is refused with a warning.
///
/// Opening. Construction touches nothing. The first use creates the key, also when it only reads;
/// where it may not be created or written it is opened for reading.
///
/// Stored types. bool: REG_SZ "true" or "false"; int, uint: REG_DWORD; qlonglong, qulonglong:
/// REG_QWORD; QStringList and QVariantList: REG_MULTI_SZ of the elements' texts. All else is text:
/// QString itself, with another "@" before one that begins with "@", and as "@String(...)" when it
/// holds a NUL; a double in digits; QByteArray "@ByteArray(...)"; an invalid value "@Invalid()".
/// Text is REG_SZ, or REG_BINARY of its UTF-16 code units when it holds a NUL. Other types, and
/// lists with an element that is empty or holds a NUL, are for Windows only: elsewhere they are
/// refused with a warning and AccessError.
///
/// Read types. REG_SZ and REG_EXPAND_SZ (not expanded): the text up to its first NUL, decoded as
/// above; REG_MULTI_SZ: QStringList; REG_DWORD: int; REG_QWORD: qlonglong; REG_BINARY and REG_NONE:
/// the text that their UTF-16 code units make. Nothing else is read.
///
/// An object belongs to one thread at a time; any number of objects and processes may use one key.
class RegistrySettings
{
public:
    /// The key Software\organisation\application below HKEY_CURRENT_USER (user scope) or
    /// HKEY_LOCAL_MACHINE (system scope); without an application its name is
    /// "OrganizationDefaults". Without an organisation nothing can be stored: AccessError.
    RegistrySettings(
        QSettings::Scope scope, const QString& organisation, const QString& application);

    /// A full path, such as "HKEY_CURRENT_USER\\Software\\Vorlan", with or without a backslash at
    /// its end; "HKCU" and "HKLM" are short for the roots. A path that begins with neither root
    /// names no key: nothing is read, and a write is an AccessError.
    explicit RegistrySettings(const QString& keyPath);

    /// Deletes the key itself if remove("") was called outside all groups and nothing was set
    /// afterwards.
    ~RegistrySettings();
    RegistrySettings(const RegistrySettings&) = delete;
    RegistrySettings& operator=(const RegistrySettings&) = delete;

    /// The stored value, or defaultValue when there is none.
    QVariant value(const QString& key, const QVariant& defaultValue = {}) const;

    /// Written through at once. A failure makes status() AccessError.
    void setValue(const QString& key, const QVariant& value);

    bool contains(const QString& key) const;

    /// Removes the value of that name, and the sub-key of that name with all below it. An empty key
    /// stands for the current group; outside all groups it empties the key.
    void remove(const QString& key);

    /// The names of the values in the current group, sorted.
    QStringList childKeys() const;

    /// The names of the sub-keys of the current group, sorted.
    QStringList childGroups() const;

    /// The path with a backslash before the root: "\\HKEY_CURRENT_USER\\Software\\...".
    QString fileName() const;

    void beginGroup(const QString& prefix);
    void endGroup();
    QString group() const;

    /// AccessError from the first failed write on.
    QSettings::Status status() const;

    void sync();

private:
    class Implementation;
    const std::unique_ptr<Implementation> implementation;
};

} // namespace Vorlan
