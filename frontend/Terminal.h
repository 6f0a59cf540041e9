#pragma once

class QString;

namespace Vorlan::FrontEnd
{

// Whether standard output is a terminal.
bool IsOutputTerminal();

// Connects standard output and standard error to the console of the parent process, if the system
// does not do so for GUI programs. Redirected streams are not changed. To be called before anything
// is printed. False if there is no console and no redirected stream, as after a double click.
bool ConnectToConsole();

// Shows a text in a message box of the system and waits until it is closed; does nothing on a
// system without such boxes.
void ShowBox(const QString& text);

} // namespace Vorlan::FrontEnd
