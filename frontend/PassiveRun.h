#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// The silent runs with a window that shows the progress, cannot be closed and asks nothing. They
// need a QApplication prepared by ApplyStyle; else as InstallSilently and UninstallSilently.
Outcome InstallPassively(const CommandLine& options, const EventSink& sink);
Outcome UninstallPassively(const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
