#include "Terminal.h"

#include <windows.h>

namespace Vorlan::FrontEnd
{

bool IsOutputTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != FALSE;
}

} // namespace Vorlan::FrontEnd
