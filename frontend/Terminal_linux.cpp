#include "Terminal.h"

#include <unistd.h>

namespace Vorlan::FrontEnd
{

bool IsOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

void ConnectToConsole() {}

} // namespace Vorlan::FrontEnd
