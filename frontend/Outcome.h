#pragma once

#include "ExitCode.h"

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// Result of a run: exit code and, after a failure, one line with the cause and the remedy.
struct Outcome
{
    ExitCode code = ExitCode::Done;
    QString error;
    QString logFile = {}; // after a failure: the log of the process that has performed the run
    // Installation: files of the user that were moved. Uninstallation: what is left in the folder,
    // relative to it.
    QStringList files = {};
};

} // namespace Vorlan::FrontEnd
