#pragma once

#include "FileHolder.h"
#include "Outcome.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Vorlan::FrontEnd
{

// What is known of a run that has failed.
struct FailedRun
{
    bool isUninstallation = false;
    QString folder; // of the product
    QString locale; // of sizes in the texts
    quint64 neededBytes = 0;
    QString stage;          // the id of the last one that began; empty before the first
    QString engineText;     // the engine's own text for the failure
    QStringList logLines;   // the last lines of the log, the oldest first
    QStringList copyErrors; // reasons why files were not copied
};

// What is asked of the system after a failure.
struct FailureProbe
{
    std::function<std::vector<FileHolder>(const QString&)> holdersOf; // of a file
    // The first file below the folder that cannot be opened for writing; empty if all can.
    std::function<QString(const QString&)> findBlockedFile;
    std::function<std::optional<qint64>(const QString&)> freeBytes; // where the folder is
};

FailureProbe SystemFailureProbe();

// Explains the failure by what the engine logged and what the system knows, in the language of the
// installed translator. May take seconds, on any thread.
Explanation ExplainFailure(const FailedRun& run, const FailureProbe& probe);

} // namespace Vorlan::FrontEnd
