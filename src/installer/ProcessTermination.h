#pragma once

#include "installer/Export.h"

class QString;

namespace Vorlan
{

// Ends every process whose executable lies directly in the folder and waits for it. The caller's
// own process is not exempt. Throws std::runtime_error when one cannot be ended.
INSTALLER_EXPORT void KillAllProcessesInFolder(const QString& folder);

} // namespace Vorlan
