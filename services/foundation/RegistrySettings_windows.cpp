#include "registry/RegistrySettings.h"

namespace Vorlan
{

class RegistrySettings::Implementation
{
public:
    Implementation(QSettings::Scope scope, const QString& organisation, const QString& application)
        : settings(QSettings::NativeFormat, scope, organisation, application)
    {
        settings.setFallbacksEnabled(false);
    }

    explicit Implementation(const QString& keyPath) : settings(keyPath, QSettings::NativeFormat)
    {
        settings.setFallbacksEnabled(false);
    }

    QSettings settings;
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
    return implementation->settings.value(key, defaultValue);
}

void RegistrySettings::setValue(const QString& key, const QVariant& value)
{
    implementation->settings.setValue(key, value);
}

bool RegistrySettings::contains(const QString& key) const
{
    return implementation->settings.contains(key);
}

void RegistrySettings::remove(const QString& key)
{
    implementation->settings.remove(key);
}

QStringList RegistrySettings::childKeys() const
{
    return implementation->settings.childKeys();
}

QStringList RegistrySettings::childGroups() const
{
    return implementation->settings.childGroups();
}

QString RegistrySettings::fileName() const
{
    return implementation->settings.fileName();
}

void RegistrySettings::beginGroup(const QString& prefix)
{
    implementation->settings.beginGroup(prefix);
}

void RegistrySettings::endGroup()
{
    implementation->settings.endGroup();
}

QString RegistrySettings::group() const
{
    return implementation->settings.group();
}

QSettings::Status RegistrySettings::status() const
{
    return implementation->settings.status();
}

void RegistrySettings::sync()
{
    implementation->settings.sync();
}

} // namespace Vorlan
