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

// The options, changed so that they ask for these settings.
CommandLine OptionsFor(const InstallationSettings& settings, CommandLine options);

// Writes the response file that the options ask for. Returns one line for the user, or an empty
// text.
QString SaveChoices(const InstallationSettings& settings, const CommandLine& options);

} // namespace Vorlan::FrontEnd
