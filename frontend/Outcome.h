#pragma once

#include "ExitCode.h"

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// A failure of a run for the user, in sentences.
struct Explanation
{
    QString cause = {};  // with the file and the program
    QString state = {};  // what the machine is now
    QString advice = {}; // what to do; may be empty
};

// Result of a run: exit code and, after a failure, one line with the cause and the remedy.
struct Outcome
{
    ExitCode code = ExitCode::Done;
    QString error;
    Explanation explanation = {}; // of a run that began; empty if it was refused before
    QString logFile = {}; // after a failure: the log of the process that has performed the run
    // Installation: files of the user that were moved. Uninstallation: what is left in the folder,
    // relative to it.
    QStringList files = {};
};

} // namespace Vorlan::FrontEnd
