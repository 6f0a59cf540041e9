#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"
#include "base/InstallationSettings.h"

#include <QSettings>
#include <QString>

#include <memory>
#include <optional>

namespace Vorlan
{
class InstallerMediator;
} // namespace Vorlan

namespace Vorlan::FrontEnd
{

// Where the payload archive must be: in the program's folder.
QString ArchivePath();
bool HasArchive();
QString MissingArchiveText();

// A mediator for an installation from this program's folder. Throws std::runtime_error when the
// archive cannot be read.
std::unique_ptr<InstallerMediator> MakeInstaller(QSettings::Scope scope, bool isUnattended);

// Installs with these settings and returns after the run. Cancels a removal of the folder that has
// not begun yet.
Outcome InstallWith(
    InstallerMediator& mediator, InstallationSettings settings, const EventSink& sink);

// The same in another process with administrator rights. No value if the user refuses them. The
// mediator then has these settings, as after a run of its own.
std::optional<Outcome> InstallElevated(InstallerMediator& mediator,
    const InstallationSettings& settings, const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
