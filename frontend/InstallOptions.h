#pragma once

#include "CommandLine.h"
#include "base/InstallationSettings.h"

namespace Vorlan::FrontEnd
{

// The proposed settings, changed by the options.
InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options);

// The options, changed so that they ask for these settings.
CommandLine OptionsFor(const InstallationSettings& settings, CommandLine options);

// Writes the response file that the options ask for. Returns one line for the user, or an empty
// text.
QString SaveChoices(const InstallationSettings& settings, const CommandLine& options);

} // namespace Vorlan::FrontEnd
