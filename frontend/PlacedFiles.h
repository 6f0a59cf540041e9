#pragma once

#include "installer/InstallerMediator.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Vorlan::FrontEnd
{

// The list of the files that installations have placed in a folder. It is kept in a sub-folder of
// that folder (docs/uninstallation.md has its format). Paths are relative to the folder, with "/";
// on Windows their case is ignored.
class PlacedFiles
{
public:
    enum class State
    {
        Complete,  // a file of the list is ours, whatever has been written into it since
        Unfinished // the installation was cut off: only a file of the size in the list is ours
    };

    // A size of -1 is unknown: such a file is ours in any case.
    using File = InstallerMediator::PlacedFile;

    PlacedFiles(State state, const std::vector<File>& files);

    // The list in this folder; nothing if there is none, or one that cannot be understood.
    static std::optional<PlacedFiles> Read(const QString& folder);
    static bool IsIn(const QString& folder);
    // Removes the list and its sub-folder.
    static void RemoveFrom(const QString& folder);
    // Name of the sub-folder with the list.
    static QString DataFolder();

    // Replaces the list in this folder as a whole; false if it cannot be written.
    bool Write(const QString& folder) const;

    bool Contains(const QString& path, qint64 size) const;
    // Whether a file of the list is below this sub-folder.
    bool IsAround(const QString& subFolder) const;

    std::vector<File> Files() const;
    // The same list with further files.
    PlacedFiles With(const std::vector<File>& further) const;

private:
    State state;
    QHash<QString, File> files; // by key
    QSet<QString> folders;      // keys of the folders around them
};

// The content of a folder, sorted by who has placed it. Links are never followed.
struct FolderContent
{
    QStringList own;        // files of the list
    QStringList ownFolders; // sub-folders around them, inner ones first
    QStringList foreign; // everything else: files, links, and as a whole sub-folders with nothing
                         // of ours in them, which end with "/"
};

// Sorts what is in the folder; the list itself and files that are kept are not named.
FolderContent SortContent(const QString& folder, const PlacedFiles& placed);

} // namespace Vorlan::FrontEnd
