#pragma once

#include "Outcome.h"
#include "RunEvent.h"

#include <QByteArray>

#include <optional>

namespace Vorlan::FrontEnd
{

// The event of a line that WriteJsonEvent has written; no value for another line.
std::optional<RunEvent> ReadJsonEvent(const QByteArray& line);

// The outcome of a line that WriteJsonOutcome has written; no value for another line.
std::optional<Outcome> ReadJsonOutcome(const QByteArray& line);

} // namespace Vorlan::FrontEnd
