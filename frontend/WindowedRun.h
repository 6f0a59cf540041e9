#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Installs or uninstalls with a window, and returns when the person has left it. For all users
// without the rights, the uninstaller is started again with them. Needs a QApplication that is
// dressed, the program's own folder as current folder, and absolute paths in the options.
Outcome InstallWithWindow(const CommandLine& options, const EventSink& sink);
Outcome UninstallWithWindow(const CommandLine& options, const EventSink& sink);

// Says in a box that another setup must end first.
void TellAnotherSetupRuns(const CommandLine& options);

} // namespace Vorlan::FrontEnd
