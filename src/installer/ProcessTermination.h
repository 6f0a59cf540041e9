#pragma once

#include "base/Export.h"

class QString;

namespace Vorlan
{

/// Ends every process whose executable lies directly in the folder, without asking it, and waits
/// for its end, up to five seconds each, on the calling thread. The caller's own process is not
/// exempt; one that may not be opened is passed over. Throws std::runtime_error when one cannot be
/// ended or does not end in time; those before it have ended then.
INSTALLER_EXPORT void KillAllProcessesInFolder(const QString& folder);

/// The same, but the caller's own process is exempt.
void KillOtherProcessesInFolder(const QString& folder);

} // namespace Vorlan
