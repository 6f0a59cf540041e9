#pragma once

#include "CommandLine.h"
#include "base/InstallationSettings.h"

namespace Vorlan::FrontEnd
{

// The proposed settings, changed by the options.
InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options);

// The words of a command line that passes these settings to another process.
QStringList WordsFor(const InstallationSettings& settings);

} // namespace Vorlan::FrontEnd
