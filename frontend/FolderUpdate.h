#pragma once

#include "PlacedFiles.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace Vorlan::FrontEnd
{

// What an installation does to its folder, and to that of the version before, around the engine's
// work: files that are not the product's are kept out of its way, the list of placed files is
// written, and what only the version before had goes.
class FolderUpdate
{
public:
    // `formerFolder` is that of the version whose uninstaller the engine will run; empty if there
    // is none. `payload` is what will be placed.
    FolderUpdate(const QString& folder, const QString& formerFolder,
        const std::vector<PlacedFiles::File>& payload);

    // Moves the files of others out of the way. Returns the path of the first one that cannot be
    // moved; nothing is changed then.
    QString Begin();
    // The engine begins to place files.
    void BeginPlacing() const;
    // After a run that succeeded.
    void Complete();
    // Moves the files of others back, after any run. Returns the paths of those that must stay
    // away, because another file has their name by now.
    QStringList End() const;

private:
    bool IsInPlace() const { return former == folder; }
    PlacedFiles PlacedNow() const;
    void RemoveDeadFiles();

    QString folder;
    QString former;
    std::vector<PlacedFiles::File> payloadFiles;
    PlacedFiles payload;
    std::optional<PlacedFiles> formerList; // read before the run
};

} // namespace Vorlan::FrontEnd
