#pragma once

#include <QByteArray>
#include <QVariant>

#include <windows.h>

#include <optional>

namespace Vorlan
{

// A registry value's type and bytes.
struct StoredValue
{
    DWORD type = REG_NONE;
    QByteArray data;
};

// How RegistrySettings stores a value and reads it back; its header has the rules. Refused, as
// nothing stores them: lists with an element that is empty or holds a NUL, and types other than
// text, numbers, bool, QByteArray and lists of these, which QSettings would encode as "@Rect(...)",
// "@Variant(...)" and so on; text of these forms is read as it stands.
std::optional<StoredValue> ToStored(const QVariant& value);
QVariant FromStored(const StoredValue& stored);

} // namespace Vorlan
