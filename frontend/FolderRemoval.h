#pragma once

#include "PlacedFiles.h"
#include "RemovalFolder.h"

namespace Vorlan::FrontEnd
{

// Removes what installations have placed in a folder. What is in use is moved out of it and deleted
// later.
class FolderRemoval
{
public:
    FolderRemoval(const QString& folder, const PlacedFiles& placed);

    // Deletes the placed files, and the sub-folders that are empty by then.
    void RemoveOwn();
    // Removes everything else.
    void RemoveForeign();
    // The placed files that could not be removed.
    const std::vector<PlacedFiles::File>& Left() const { return left; }
    // Removes the list of placed files, or reduces it to what is left, and then the folder if
    // nothing is in it. Returns what stays: paths relative to it, sub-folders with "/" at the end.
    QStringList RemoveFolder();
    // Has what was in use deleted once this process has ended.
    void ScheduleRest() const { inUse.ScheduleRemoval(); }

private:
    void RemoveEmptyFolders(const FolderContent& content) const;

    QString folder;
    PlacedFiles placed;
    RemovalFolder inUse;
    std::vector<PlacedFiles::File> left;
};

} // namespace Vorlan::FrontEnd
