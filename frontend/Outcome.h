#pragma once

#include "ExitCode.h"

#include <QString>

namespace Vorlan::FrontEnd
{

// Result of a run: exit code and, after a failure, one line with the cause and the remedy.
struct Outcome
{
    ExitCode code = ExitCode::Done;
    QString error;
    QString logFile = {}; // after a failure: the log of the process that has performed the run
};

} // namespace Vorlan::FrontEnd
