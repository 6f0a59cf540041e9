#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Install or uninstall without windows and questions, and return after the run. With /PASSIVE a run
// that needs administrator rights is performed by an elevated process. They need a
// QApplication, the program's own folder as current folder, and absolute paths in the options.
Outcome InstallSilently(const CommandLine& options, const EventSink& sink);

// Deletes all files at the top of the program's own folder; refuses a folder that is not the
// product's.
Outcome UninstallSilently(const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
