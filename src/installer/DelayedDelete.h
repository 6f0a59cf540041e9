#pragma once

#include "installer/Export.h"

class QString;

namespace Vorlan
{

/// Starts a script that removes a folder with everything in it once the delay has passed, also
/// after this process has ended; the folder above goes too where it holds nothing else. The script
/// is the front end's resource ":/Batch/uninstallDelayedDir.bat", copied to the temporary folder:
/// it gets the seconds, the folder, and "true" or "false" for the folder above. Returns at once and
/// throws nothing; without the resource nothing happens, and whether the script works is not
/// examined.
INSTALLER_EXPORT void DelayedDeleteDir(int delaySeconds, const QString& folder);

} // namespace Vorlan
