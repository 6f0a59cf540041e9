#pragma once

#include "CommandLine.h"
#include "Outcome.h"
#include "RunEvent.h"

#include <QString>

#include <fstream>
#include <optional>

namespace Vorlan::FrontEnd
{

// Performs a run in a new process of `program`, with administrator rights and these options,
// after the system's confirmation dialog. Returns after its end and processes events meanwhile. The
// new process has no windows; its events are passed to `sink` and its outcome is returned. No value
// if the user has refused. On the GUI thread.
std::optional<Outcome> RunElevated(
    const QString& program, const CommandLine& options, const EventSink& sink);

// What a program that was started by RunElevated writes for the waiting one, a line of JSON for
// each event and one for the outcome. The file is in the program's protected folder.
class ElevatedReport
{
public:
    explicit ElevatedReport(const QString& protectedFolder);

    void Write(const RunEvent& event);
    void Write(const Outcome& outcome);

private:
    std::ofstream file;
};

} // namespace Vorlan::FrontEnd
