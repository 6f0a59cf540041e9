#pragma once

class QString;

namespace Vorlan::FrontEnd
{

// Whether a person watches standard output, and not a file or another program.
bool IsOutputTerminal();

// Lets what the program prints reach the console that it was started from, where the system gives a
// program with windows none. Standard output that goes elsewhere already stays as it is. To be
// called before anything is printed. False when there is nowhere to print to, as after a double
// click.
bool ConnectToConsole();

// Shows a text in a box of the system and waits for the person, where the system has such boxes.
void ShowBox(const QString& text);

} // namespace Vorlan::FrontEnd
