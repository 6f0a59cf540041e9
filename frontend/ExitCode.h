#pragma once

namespace Vorlan::FrontEnd
{

// How the program ends, in the numbers that deployment tools know. Numbers are only ever added.
// Systems that keep eight bits of an exit code (Linux) show the number modulo 256.
enum class ExitCode : int
{
    Done = 0,
    BadCommandLine = 87,
    DiskFull = 112,                // found before the run
    DependentProgramsExist = 1051, // an uninstallation that other programs forbid
    Cancelled = 1602,
    Failed = 1603,
    AnotherSetupRunning = 1618
};

} // namespace Vorlan::FrontEnd
