#pragma once

#include "CommandLine.h"
#include "FoundInstallations.h"
#include "base/InstallationSettings.h"

namespace Vorlan::FrontEnd
{

// For whom to install: as the options say, else as the product is installed.
QSettings::Scope ChooseScope(const FoundInstallations& found, const CommandLine& options);

// The proposed settings, changed by the options.
InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options);

// The words of a command line that passes these settings to another process.
QStringList WordsFor(const InstallationSettings& settings);

} // namespace Vorlan::FrontEnd
