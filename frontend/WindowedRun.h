#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Install or uninstall with a window, and return after it is closed. They need a QApplication
// prepared by ApplyStyle, the program's own folder as current folder, and absolute paths in
// the options.
Outcome InstallWithWindow(const CommandLine& options, const EventSink& sink);
Outcome UninstallWithWindow(const CommandLine& options, const EventSink& sink);

// The language before a mediator proposes one: that of the options, or the system's.
QString FirstLanguage(const CommandLine& options);

// Shows a box: another setup must end first.
void ShowAnotherSetupRuns(const CommandLine& options);

} // namespace Vorlan::FrontEnd
