#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Installs without any window and without a question, and returns when the run is over. Needs a
// QApplication, the program's own folder as current folder, and absolute paths in the options.
Outcome InstallSilently(const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
