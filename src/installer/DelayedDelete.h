#pragma once

#include "base/Export.h"

class QString;

namespace Vorlan
{

/// Has a folder removed with everything in it once the delay has passed, also after this process
/// has ended, by a script of the front end: the resource ":/Batch/uninstallDelayedDir.bat", copied
/// to the temporary folder. It gets the seconds, the folder, and "true" or "false": whether the
/// folder is alone in the one above. Returns at once and throws nothing; without the resource
/// nothing happens, and whether the script works is not examined.
INSTALLER_EXPORT void DelayedDeleteDir(int delaySeconds, const QString& folder);

} // namespace Vorlan
