#pragma once

namespace Vorlan::FrontEnd
{

// Whether a person watches standard output, and not a file or another program.
bool IsOutputTerminal();

// Lets what the program prints reach the console that it was started from, where the system gives a
// program with windows none. Standard output that goes elsewhere already stays as it is. To be
// called before anything is printed.
void ConnectToConsole();

} // namespace Vorlan::FrontEnd
