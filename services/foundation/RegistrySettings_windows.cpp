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
    : m_implementation(std::make_unique<Implementation>(scope, organisation, application))
{
}

RegistrySettings::RegistrySettings(const QString& keyPath)
    : m_implementation(std::make_unique<Implementation>(keyPath))
{
}

RegistrySettings::~RegistrySettings() = default;

QVariant RegistrySettings::value(const QString& key, const QVariant& defaultValue) const
{
    return m_implementation->settings.value(key, defaultValue);
}

void RegistrySettings::setValue(const QString& key, const QVariant& value)
{
    m_implementation->settings.setValue(key, value);
}

bool RegistrySettings::contains(const QString& key) const
{
    return m_implementation->settings.contains(key);
}

void RegistrySettings::remove(const QString& key)
{
    m_implementation->settings.remove(key);
}

QStringList RegistrySettings::childKeys() const
{
    return m_implementation->settings.childKeys();
}

QStringList RegistrySettings::childGroups() const
{
    return m_implementation->settings.childGroups();
}

QString RegistrySettings::fileName() const
{
    return m_implementation->settings.fileName();
}

void RegistrySettings::beginGroup(const QString& prefix)
{
    m_implementation->settings.beginGroup(prefix);
}

void RegistrySettings::endGroup()
{
    m_implementation->settings.endGroup();
}

QString RegistrySettings::group() const
{
    return m_implementation->settings.group();
}

QSettings::Status RegistrySettings::status() const
{
    return m_implementation->settings.status();
}

void RegistrySettings::sync()
{
    m_implementation->settings.sync();
}

} // namespace Vorlan
