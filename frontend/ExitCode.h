#pragma once

namespace Vorlan::FrontEnd
{

// Exit codes of the program, with the numbers that deployment tools use. Existing numbers do not
// change. Linux keeps eight bits of an exit code: the number modulo 256.
enum class ExitCode : int
{
    Done = 0,
    BadCommandLine = 87,
    DiskFull = 112,                // detected before the run
    DependentProgramsExist = 1051, // an uninstallation is refused because of other programs
    Cancelled = 1602,
    Failed = 1603,
    AnotherSetupRunning = 1618,
    NewerVersionInstalled = 1638 // found before the run
};

} // namespace Vorlan::FrontEnd
