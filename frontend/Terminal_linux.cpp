#include "Terminal.h"

#include <QString>

#include <unistd.h>

namespace Vorlan::FrontEnd
{

bool IsOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool ConnectToConsole()
{
    return true; // without a terminal, output is written to the session's log
}

void ShowBox(const QString&) {}

} // namespace Vorlan::FrontEnd
