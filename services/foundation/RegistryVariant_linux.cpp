#include "foundation/RegistryVariant_linux.h"

#include <algorithm>
#include <cstring>

#include <QtDebug>

namespace Vorlan
{

namespace
{

QByteArray WideData(const QString& text)
{
    const std::wstring wide = text.toStdWString();
    return QByteArray(reinterpret_cast<const char*>(wide.c_str()),
        static_cast<int>((wide.size() + 1) * sizeof(wchar_t)));
}

StoredValue StoredText(const QString& text)
{
    if (!text.contains(QChar::Null))
        return {REG_SZ, WideData(text)};
    const int size = text.size() * static_cast<int>(sizeof(ushort));
    return {REG_BINARY, QByteArray(reinterpret_cast<const char*>(text.utf16()), size)};
}

// With its zeros, which the conversion of a whole array stops at.
QString Latin1Text(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

QString EscapedText(const QString& text)
{
    if (text.contains(QChar::Null))
        return "@String(" + text + ')';
    return text.startsWith('@') ? '@' + text : text;
}

// Nothing for a type that is refused.
std::optional<QString> TextOf(const QVariant& value)
{
    switch (value.userType())
    {
    case QMetaType::UnknownType:
        return "@Invalid()";
    case QMetaType::QByteArray:
        return "@ByteArray(" + Latin1Text(value.toByteArray()) + ')';
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return EscapedText(value.toString());
    default:
        return std::nullopt;
    }
}

// An element that is empty or holds a NUL would end the list.
std::optional<StoredValue> StoredList(const QVariant& value)
{
    QByteArray data;
    for (const QVariant& element : value.toList())
    {
        const std::optional<QString> text = TextOf(element);
        if (!text || text->isEmpty() || text->contains(QChar::Null))
            return std::nullopt;
        data += WideData(*text);
    }
    return StoredValue{REG_MULTI_SZ, data + QByteArray(sizeof(wchar_t), '\0')};
}

template <typename Number>
QByteArray NumberData(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof(number));
}

// The inside of "@Name(...)", if the text has that form.
bool TakeForm(const QString& text, const char* name, QString& inside)
{
    const QString start = '@' + QLatin1String(name) + '(';
    if (!text.startsWith(start) || !text.endsWith(')'))
        return false;
    inside = text.mid(start.size(), text.size() - start.size() - 1);
    return true;
}

QVariant FromText(const QString& text)
{
    QString inside;
    if (text.startsWith("@@"))
        return text.mid(1);
    if (text == "@Invalid()")
        return {};
    if (TakeForm(text, "String", inside))
        return inside;
    if (TakeForm(text, "ByteArray", inside))
        return inside.toLatin1();
    return text;
}

// The texts, each closed by a zero, up to an empty one.
QVariant FromTexts(const QString& texts)
{
    QVariantList values;
    bool onlyText = true;
    for (const QString& text : texts.split(QChar::Null))
    {
        if (text.isEmpty())
            break;
        values.append(FromText(text));
        onlyText = onlyText && values.last().userType() == QMetaType::QString;
    }
    return onlyText ? QVariant(QVariant(values).toStringList()) : QVariant(values);
}

template <typename Number>
Number NumberFrom(const QByteArray& data)
{
    Number number = 0;
    std::memcpy(&number, data.constData(), std::min<size_t>(sizeof(number), data.size()));
    return number;
}

QString WideText(const QByteArray& data)
{
    const int size = data.size() / static_cast<int>(sizeof(wchar_t));
    return QString::fromWCharArray(reinterpret_cast<const wchar_t*>(data.constData()), size);
}

} // namespace

std::optional<StoredValue> ToStored(const QVariant& value)
{
    switch (value.userType())
    {
    case QMetaType::Int:
    case QMetaType::UInt:
        return StoredValue{REG_DWORD, NumberData(static_cast<DWORD>(value.toUInt()))};
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return StoredValue{REG_QWORD, NumberData(value.toULongLong())};
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return StoredList(value);
    default:
        break;
    }
    const std::optional<QString> text = TextOf(value);
    return text ? std::optional(StoredText(*text)) : std::nullopt;
}

QVariant FromStored(const StoredValue& stored)
{
    switch (stored.type)
    {
    case REG_SZ:
    case REG_EXPAND_SZ:
        return FromText(WideText(stored.data).section(QChar::Null, 0, 0));
    case REG_MULTI_SZ:
        return FromTexts(WideText(stored.data));
    case REG_DWORD:
        return NumberFrom<int>(stored.data);
    case REG_QWORD:
        return NumberFrom<qlonglong>(stored.data);
    case REG_BINARY:
    case REG_NONE:
        return FromText(QString::fromUtf16(reinterpret_cast<const ushort*>(stored.data.constData()),
            stored.data.size() / static_cast<int>(sizeof(ushort))));
    default:
        qWarning("Registry value of type %u is not read.", static_cast<unsigned>(stored.type));
        return {};
    }
}

} // namespace Vorlan
