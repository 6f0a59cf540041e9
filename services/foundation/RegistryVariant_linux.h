#pragma once

#include <QByteArray>
#include <QVariant>

#include <windows.h>

namespace Vorlan
{

/// A registry value's type and bytes.
struct StoredValue
{
    DWORD type = REG_NONE;
    QByteArray data;
};

/// How RegistrySettings stores a value and reads it back: the rules stand there.
StoredValue ToStored(const QVariant& value);
QVariant FromStored(const StoredValue& stored);

} // namespace Vorlan
