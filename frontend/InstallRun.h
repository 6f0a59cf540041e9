#pragma once

#include "Obstacles.h"
#include "Outcome.h"
#include "RunEvent.h"
#include "base/InstallationSettings.h"

#include <QSettings>
#include <QString>

#include <memory>

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

// What to do with programs that hold files which an installation with these settings changes.
ObstacleRules RulesFor(const InstallationSettings& settings);

// Installs with these settings and returns after the run. Cancels a removal of the folder that has
// not begun yet.
Outcome InstallWith(
    InstallerMediator& mediator, InstallationSettings settings, const EventSink& sink);

} // namespace Vorlan::FrontEnd
