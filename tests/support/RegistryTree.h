#pragma once

#include <QString>
#include <QStringList>

// A registry key with everything below it, as lines "Sub\Key: name = TYPE data"; a key without
// values is one line "Sub\Key:". Sorted, relative to the key; the default value's name is "@".
QStringList RegistryTree(const QString& rootName, const QString& keyPath);
