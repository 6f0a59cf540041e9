#pragma once

#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

// Folders that no removal may touch, as absolute paths; empty ones are ignored.
struct SystemFolders
{
    QStringList closed;   // with everything in them
    QStringList shared;   // they and the folders around them; other folders in them may be removed
    QStringList homes;    // they, their neighbours and the folders around them
    QStringList personal; // well-known folders of the user; the same as for `shared`
};

// Those of this machine and user.
SystemFolders FindSystemFolders();

// What the folder is if it must not be removed with its content ("a root"), else empty. The
// deletion script decides in the same way and uses the same words.
QString FindRemovalObjection(const QString& folder);

} // namespace Vorlan::FrontEnd
