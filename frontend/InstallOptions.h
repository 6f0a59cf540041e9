#pragma once

#include "CommandLine.h"
#include "base/InstallationSettings.h"

#include <memory>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Where the payload archive must lie: beside the program.
QString ArchivePath();
bool HasArchive();

// A mediator for an installation from this program's folder. Throws std::runtime_error when the
// archive cannot be read.
std::unique_ptr<InstallerMediator> MakeInstaller(QSettings::Scope scope, bool isUnattended);

// The proposed settings with what the command line asks for.
InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options);

// The words of a command line that proposes these settings to another process.
QStringList WordsFor(const InstallationSettings& settings);

} // namespace Vorlan::FrontEnd
