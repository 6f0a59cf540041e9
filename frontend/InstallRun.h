#pragma once

#include "CommandLine.h"
#include "Obstacles.h"
#include "Outcome.h"
#include "RunEvent.h"
#include "base/InstallationSettings.h"

#include <QSettings>
#include <QString>
#include <QStringList>

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

// What to do with programs that hold files which an installation with these settings changes.
ObstacleRules RulesFor(InstallationSettings settings);

// Result of an installation, and the paths of files that are not the product's and could not get
// their places back, because the product has a file of that name.
struct InstallResult
{
    Outcome outcome;
    QStringList movedFiles;
};

// Installs with these settings and returns after the run. Files in the folder that are not the
// product's stay as they are.
InstallResult InstallWith(
    InstallerMediator& mediator, InstallationSettings settings, const EventSink& sink);

// The same in another process with administrator rights. No value if the user refuses them. The
// mediator then has these settings, as after a run of its own.
std::optional<InstallResult> InstallElevated(InstallerMediator& mediator,
    const InstallationSettings& settings, const CommandLine& options, const EventSink& sink);

} // namespace Vorlan::FrontEnd
