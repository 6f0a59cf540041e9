#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Uninstalls the product from the program's own folder, without any window. Everything at the top
// of that folder is deleted, so a folder that is not the product's is refused.
Outcome UninstallSilently(const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
