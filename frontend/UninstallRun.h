#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

#include <memory>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Uninstalls the product from the program's own folder, without any window. Everything at the top
// of that folder is deleted, so a folder that is not the product's is refused.
Outcome UninstallSilently(const CommandLine& options, const EventSink& sink);

// A mediator for an uninstallation. Unattended is a run that nobody watches: it leaves additional
// modules alone unless all is removed.
std::unique_ptr<InstallerMediator> MakeUninstaller(
    QSettings::Scope scope, const CommandLine& options, bool isUnattended);

// The uninstallation itself, from a folder that may be emptied.
Outcome UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
