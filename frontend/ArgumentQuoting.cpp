#include "ArgumentQuoting.h"

namespace Vorlan::FrontEnd
{
namespace
{

// Backslashes are literal, except before a quote: there each must be doubled, and the quote itself
// follows a backslash.
QString Quote(const QString& argument)
{
    QString quoted = "\"";
    int backslashes = 0;
    for (const QChar character : argument)
    {
        if (character == '"')
        {
            quoted += QString(backslashes + 1, '\\');
        }
        backslashes = character == '\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted + QString(backslashes, '\\') + '"';
}

} // namespace

QString QuoteArguments(const QStringList& arguments)
{
    QStringList quoted;
    for (const QString& argument : arguments)
    {
        quoted << Quote(argument);
    }
    return quoted.join(' ');
}

} // namespace Vorlan::FrontEnd
