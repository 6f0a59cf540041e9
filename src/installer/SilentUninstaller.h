#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace Vorlan
{

// A script beside an uninstaller that is run in its place; it outlives the removal of the files.
inline constexpr char silentUninstallScript[] = "silentUninstall.bat";

// How a wait passes the time between two checks.
struct WaitClock
{
    std::function<std::chrono::steady_clock::time_point()> now;
    std::function<void()> sleep;
};

// The real time; sleeps as briefly as the system grants.
WaitClock SystemClock();

// Runs an installed program's uninstaller silently, without a window, and waits for it; then for
// its folder to be emptied (only with needsElevation, at most 60 s: an uninstaller that needs
// elevation hands its work to a copy of itself and exits at once) and to disappear (at most 10 s).
// The script beside it is run in its place. A start that fails is only logged;
// throws std::runtime_error when the wait for the process breaks off. The process itself has no
// time limit.
void RunUninstaller(QString uninstaller, bool needsElevation, const WaitClock& clock);

} // namespace Vorlan
