#pragma once

#include "Outcome.h"
#include "RunEvent.h"

#include <iosfwd>

namespace Vorlan::FrontEnd
{

// One line of JSON for scripts: {"signal":"ProcessStarted","process":"EXTRACT_FILES"}.
void WriteJsonEvent(std::ostream& out, const RunEvent& event);

// The last line: {"exitCode":0}, or {"error":"...","exitCode":1603,"logFile":"..."}.
void WriteJsonOutcome(std::ostream& out, const Outcome& outcome);

} // namespace Vorlan::FrontEnd
