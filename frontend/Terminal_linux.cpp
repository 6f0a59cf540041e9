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
    return true; // a program without a terminal writes to a log of the session
}

void ShowBox(const QString&) {}

} // namespace Vorlan::FrontEnd
