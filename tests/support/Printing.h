#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <ostream>

// Lets failed expectations show Qt's texts.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.left(200).toPercentEncoding(" <>=\"'").toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[' << texts.join("; ").toStdString() << ']';
}
