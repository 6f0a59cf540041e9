#pragma once

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// Files in the product's folder that are not the product's are moved away while the engine works
// there, because it deletes every file at the top of the folder, and moved back afterwards. They
// stay on their volume. If the process is killed in between, the next run moves them back.

enum class KeepingPlace
{
    Inside, // a sub-folder, which an uninstallation leaves alone
    Beside  // a folder beside it, so that the whole folder can go; else the sub-folder
};

// Moves these paths, relative to the folder, away. Returns the first one that cannot be moved, with
// all others in their places again; empty on success.
QString KeepFiles(const QString& folder, const QStringList& paths, KeepingPlace place);

// Moves everything back that this or an earlier run has moved away, except what is in the way of
// another file by now. Returns the absolute paths of what stays away.
QStringList ReturnKeptFiles(const QString& folder);
// The same for what is kept in one place.
QStringList ReturnKeptFiles(const QString& folder, KeepingPlace place);

// Name of the sub-folder.
QString InnerKeepingFolder();

} // namespace Vorlan::FrontEnd
