#pragma once

#include "installer/Export.h"

class QString;

namespace Vorlan
{

// Starts a script that removes a folder with everything in it once the delay has passed, also after
// this process has ended. Returns at once; whether it works is not examined.
INSTALLER_EXPORT void DelayedDeleteDir(int delaySeconds, const QString& folder);

} // namespace Vorlan
