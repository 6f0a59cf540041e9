#pragma once

#include "CloseHolders.h"
#include "FileHolders.h"
#include "Outcome.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

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
using FindHolders = std::function<std::vector<FileHolder>(const QString& folder)>;
std::vector<FileHolder> FindObstacles(
    const ObstacleRules& rules, const FindHolders& find = FindFileHolders);

// Before an unattended run: done if no program but those that the engine ends is in the way.
// With `mayClose` they are asked to close and after ten seconds ended. Parts of the system, such as
// a search index, have ten seconds to release the files. Else the outcome names the programs. On
// the GUI thread; processes events.
Outcome RemoveObstacles(const ObstacleRules& rules, bool mayClose, const ProcessAccess& access,
    const FindHolders& find = FindFileHolders);

} // namespace Vorlan::FrontEnd
