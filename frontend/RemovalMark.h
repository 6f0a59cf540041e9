#pragma once

#include <QString>

#include <functional>

namespace Vorlan::FrontEnd
{

// Mark of a folder whose uninstallation has begun: a folder in it, so that an interrupted
// uninstallation can be repeated. For the removal of the whole folder it has a file named after the
// identity of that removal. The deletion script receives the identity in an environment variable
// and deletes nothing without this file; the script and an installation decide by renaming or
// deleting it, which of them comes first.
class RemovalMark
{
public:
    // Marks the folder in place of earlier removals. For a full removal, the programs that this
    // process starts from now on receive a new identity.
    RemovalMark(const QString& folder, bool isFullRemoval);

    // Whether the folder has the mark with its identity.
    bool IsComplete() const;
    // Removes the mark: the uninstallation has ended, and the folder stays.
    void Finish() const;

    static bool IsIn(const QString& folder);

private:
    QString folder;
    QString identity; // empty if the folder stays
};

void WaitForScript(); // a tenth of a second

// Cancels pending removals of this folder, which need not exist, and of the folders around it, by
// removing their marks. `wait` is called at most 100 times while a script renames a folder, and as
// often while one of an older version, which heeds no mark, is running. False if a script has not
// ended then, or a mark cannot be removed.
bool CancelRemovals(const QString& folder, const std::function<void()>& wait = WaitForScript);

} // namespace Vorlan::FrontEnd
