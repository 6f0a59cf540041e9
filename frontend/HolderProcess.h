#pragma once

#include "FileHolder.h"

#include <set>

namespace Vorlan::FrontEnd
{

// Ids of this process and of those that it was started by.
std::set<qint64> OwnProcessIds();

// When the process was started, in the system's unit; 0 if it does not run or may not be asked.
quint64 StartTimeOf(qint64 processId);

// Asks the process to end: on Windows its windows are closed, on Linux it receives SIGTERM. False
// if it cannot be asked, as on Windows without a window. A process that has got the id of one that
// has ended is not touched.
bool AskToEnd(const FileHolder& holder);

// Ends the process at once, with the same condition. False if the system refuses.
bool EndAtOnce(const FileHolder& holder);

} // namespace Vorlan::FrontEnd
