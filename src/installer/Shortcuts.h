#pragma once

#include "base/Export.h"

#include <QString>
#include <QStringList>

#include <string>

namespace Vorlan
{

/// The folders of the system that the engine knows. The numbers are fixed.
enum class StandardLocation : int
{
    Programs = 0,       ///< this user's Start menu
    CommonPrograms = 1, ///< all users' Start menu
    AppData = 2,        ///< this user's roaming application data
    LocalAppData = 3,   ///< this user's application data that stays on this machine
    System = 4,         ///< Windows' own programs
    CommonAppData = 5,  ///< all users' application data
    CommonDesktop = 6,  ///< all users' desktop
    Desktop = 7         ///< this user's desktop
};

/// The folder without a separator at its end; empty when the system does not know it or its path is
/// longer than 259 characters. An unknown location counts as Desktop. Throws nothing; any thread.
INSTALLER_EXPORT QString GetStandardLocation(StandardLocation location);

/// Saves a shell link (the published Shell Link Binary format) as `link` + ".lnk", in place of one
/// that is there. It starts `target`, a whole path, in the folder of that file; each argument is
/// quoted. The folder of the link must exist. Returns whether that worked; never throws.
/// Initialises COM on the calling thread where necessary, and undoes that.
INSTALLER_EXPORT bool CreateShortCut(
    const QString& link, const QString& target, const QStringList& arguments);

/// Writes an Internet shortcut, an ".url" file whose whole name is given, in place of one that is
/// there. The address is written as it is. Returns whether the file could be opened; throws
/// nothing.
INSTALLER_EXPORT bool CreateUrlLink(const QString& file, const std::string& url);

} // namespace Vorlan
