#pragma once

#include "FileHolder.h"

#include <chrono>
#include <functional>
#include <set>
#include <vector>

namespace Vorlan::FrontEnd
{

// What closing programs needs of the system.
struct ProcessAccess
{
    std::function<std::set<qint64>()> ownIds;
    std::function<quint64(qint64)> startTimeOf;
    std::function<bool(const FileHolder&)> ask; // false if it cannot be asked
    std::function<bool(const FileHolder&)> end;
    std::function<std::chrono::steady_clock::time_point()> now;
    std::function<void()> pause; // for some milliseconds
};

// That of this machine, for a thread with an event loop: the pause processes events.
ProcessAccess SystemProcesses();

// Whether the program may be closed: it still runs, is no part of the system, and neither this
// process nor one that started it.
bool MayBeClosed(const FileHolder& holder, const ProcessAccess& access);

// Asks the programs to end and waits for those that can be asked, at most ten seconds. Returns the
// programs that still run.
std::vector<FileHolder> AskToClose(
    const std::vector<FileHolder>& holders, const ProcessAccess& access);

// Ends the programs without asking them, which loses what is not saved in them. Waits for their end
// like AskToClose, and returns those that still run.
std::vector<FileHolder> EndHolders(
    const std::vector<FileHolder>& holders, const ProcessAccess& access);

} // namespace Vorlan::FrontEnd
