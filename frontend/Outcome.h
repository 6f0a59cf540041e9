#pragma once

#include "ExitCode.h"

#include <QString>

namespace Vorlan::FrontEnd
{

// How a run ended and, unless it is done, one line that says why and what to do.
struct Outcome
{
    ExitCode code = ExitCode::Done;
    QString error;
};

} // namespace Vorlan::FrontEnd
