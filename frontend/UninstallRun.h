#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

namespace Vorlan::FrontEnd
{

// Uninstalls the product from the program's own folder, without any window. Everything at the top
// of that folder is deleted, so a folder that is not the product's is refused.
Outcome UninstallSilently(const CommandLine& options, const EventSink& sink);

// The uninstallation itself, from a folder that may be emptied. Unattended is a run that nobody
// watches: it leaves additional modules alone unless all is removed.
Outcome UninstallFrom(const QString& folder, QSettings::Scope scope, const CommandLine& options,
    bool isUnattended, const EventSink& sink);

} // namespace Vorlan::FrontEnd
