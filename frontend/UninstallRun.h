#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

#include <memory>
#include <optional>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// A mediator for an uninstallation. An unattended run uninstalls additional modules only with
// /REMOVEALL.
std::unique_ptr<InstallerMediator> MakeUninstaller(
    QSettings::Scope scope, const CommandLine& options, bool isUnattended);

// Uninstalls the product from `folder`, whose files are deleted, and returns after the run. The
// caller has checked that the folder is the product's.
Outcome UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink);

// Uninstalls the product of all users in another process with administrator rights. No value if the
// user refuses them.
std::optional<Outcome> UninstallElevated(CommandLine options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
