#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "PlacedFiles.h"
#include "RunEvent.h"

#include <memory>
#include <optional>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Result of an uninstallation, and what is still in the folder: paths relative to it, sub-folders
// with "/" at their end.
struct UninstallResult
{
    Outcome outcome;
    QStringList staying;
};

// A mediator for an uninstallation. An unattended run uninstalls additional modules only with
// /REMOVEALL.
std::unique_ptr<InstallerMediator> MakeUninstaller(
    QSettings::Scope scope, const CommandLine& options, bool isUnattended);

// The files of this folder that an uninstallation deletes: those of the list in it; without one
// those with a name that is known for every version.
PlacedFiles FilesToRemove(const InstallerMediator& mediator, const QString& folder);

// Uninstalls the product from `folder` and returns after the run. Files that are not the product's
// stay, except with /REMOVEALL. The caller has checked that the folder is the product's.
UninstallResult UninstallWith(InstallerMediator& mediator, const QString& folder,
    const CommandLine& options, const EventSink& sink);

// Uninstalls the product of all users in another process with administrator rights. No value if the
// user refuses them.
std::optional<UninstallResult> UninstallElevated(CommandLine options, const EventSink& sink);

// Deletes the listed files of a folder in which no installation is registered, and nothing else on
// the machine: no records and no shortcuts.
UninstallResult RemoveCopy(const QString& folder, const PlacedFiles& placed);

} // namespace Vorlan::FrontEnd
