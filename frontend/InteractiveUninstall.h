#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Uninstalls the product from the program's own folder and talks to a person: asks first, also
// about the settings and about a folder that may not be the product's; shows the progress and the
// end. For all users without the rights the program is started again with them.
Outcome UninstallInteractively(const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
