#pragma once

#include "FileHolder.h"

#include <QString>

#include <vector>

namespace Vorlan::FrontEnd
{

// The programs that hold this file, or files below this folder, ordered by process id. This process
// and those that it was started by are left out. What the system does not allow to be looked into
// is not found. Takes as long as the system needs for all processes: up to seconds; may be called
// on any thread.
std::vector<FileHolder> FindFileHolders(const QString& path);

} // namespace Vorlan::FrontEnd
