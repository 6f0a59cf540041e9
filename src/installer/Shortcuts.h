#pragma once

#include "installer/Export.h"

#include <QString>
#include <QStringList>

#include <string>

namespace Vorlan
{

// The folders of the system that the engine knows.
enum class StandardLocation : int
{
    Programs = 0,       // this user's Start menu
    CommonPrograms = 1, // all users' Start menu
    AppData = 2,        // this user's roaming application data
    LocalAppData = 3,
    System = 4,
    CommonAppData = 5,
    CommonDesktop = 6,
    Desktop = 7
};

// The folder without a separator at its end; empty when the system does not know it or its path is
// longer than 259 characters. An unknown location counts as Desktop.
INSTALLER_EXPORT QString GetStandardLocation(StandardLocation location);

// Saves a shell link as `link` + ".lnk". Returns whether that worked; never throws.
INSTALLER_EXPORT bool CreateShortCut(
    const QString& link, const QString& target, const QStringList& arguments);

// Writes an Internet shortcut file. Returns whether the file could be opened.
INSTALLER_EXPORT bool CreateUrlLink(const QString& file, const std::string& url);

} // namespace Vorlan
