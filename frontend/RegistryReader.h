#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// The text of a registry value below HKEY_CURRENT_USER, or below HKEY_LOCAL_MACHINE for
// QSettings::SystemScope; an empty name is the default value. Empty if there is no such text.
// Creates nothing.
QString ReadRegistryText(QSettings::Scope scope, const QString& key, const QString& name);

// Names of the keys in this key.
QStringList ReadRegistryKeys(QSettings::Scope scope, const QString& key);

} // namespace Vorlan::FrontEnd
