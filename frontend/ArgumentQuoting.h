#pragma once

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// One command line for these arguments, from which CommandLineToArgvW and the C run-time library
// split the same arguments: with blanks, quotes, trailing backslashes, or empty.
QString QuoteArguments(const QStringList& arguments);

} // namespace Vorlan::FrontEnd
