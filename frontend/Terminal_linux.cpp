#include "Terminal.h"

#include <unistd.h>

namespace Vorlan::FrontEnd
{

bool IsOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

} // namespace Vorlan::FrontEnd
