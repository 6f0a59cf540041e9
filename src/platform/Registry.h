#pragma once

#include <QFlags>
#include <QString>
#include <QStringList>

namespace Vorlan
{

namespace Util
{

// Reads values from the first place that has them, without creating anything. The keys are paths
// below the roots.
class RegistryHelper
{
public:
    // Where to look, in this order.
    enum AccessFlag
    {
        CurrentUser64 = 1,
        CurrentUser32 = 2,
        LocalMachine64 = 4,
        LocalMachine32 = 8
    };
    Q_DECLARE_FLAGS(AccessFlags, AccessFlag)

    static constexpr int everywhere =
        CurrentUser64 | CurrentUser32 | LocalMachine64 | LocalMachine32;

    RegistryHelper(const QStringList& keyPaths, AccessFlags accessFlags);

    // The value's text; a number as decimal digits; empty when no place has it.
    QString GetValue(const QString& name) const;

private:
    QStringList keys;
    AccessFlags flags;
};

} // namespace Util

namespace App
{

// During its lifetime the settings, QSettings or RegistrySettings, are relative to a child group.
template <typename Settings>
class QSettingsGroupGuard
{
public:
    QSettingsGroupGuard(Settings& guarded, const QString& group) : settings(guarded)
    {
        settings.beginGroup(group);
    }
    ~QSettingsGroupGuard() { settings.endGroup(); }
    QSettingsGroupGuard(const QSettingsGroupGuard&) = delete;
    QSettingsGroupGuard& operator=(const QSettingsGroupGuard&) = delete;

private:
    Settings& settings;
};

} // namespace App

} // namespace Vorlan
