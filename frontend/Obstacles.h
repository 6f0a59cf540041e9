#pragma once

#include "CloseHolders.h"
#include "FileHolder.h"
#include "Outcome.h"

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// What a run does with programs that hold files of its folders.
struct ObstacleRules
{
    QStringList folders;       // whose files are changed
    QString endedFolder;       // the engine ends the programs directly in it; may be empty
    QStringList endedPrograms; // of these names only; empty for all
};

// Programs with files that an installation into the folder changes, also those of the previous
// version, whose uninstaller is in `previousFolder` (empty if there is none). The engine ends the
// programs directly in the folder.
ObstacleRules InstallationRules(const QString& folder, const QString& previousFolder);

// The same for an uninstallation. The engine ends the product's companion program.
ObstacleRules UninstallationRules(const QString& folder);

// All programs in the way of a run that is attended: the user is asked also about those that the
// engine would end. Takes up to seconds, on any thread.
std::vector<FileHolder> FindObstacles(const ObstacleRules& rules);

// Before an unattended run: done if no program but those that the engine ends is in the way.
// With `mayClose` they are asked to close and after ten seconds ended. Else, or if that fails, the
// outcome names them. On the GUI thread; processes events.
Outcome RemoveObstacles(const ObstacleRules& rules, bool mayClose, const ProcessAccess& access);

} // namespace Vorlan::FrontEnd
