#pragma once

#include "base/Export.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// @file
/// What is registered with the system, as plain data. Executables are file names relative to the
/// installation folder. Arguments are written as they are: "%1" is what the shell puts in the place
/// of the file or drive. Untranslated texts are looked up in the context "Installer".
namespace Vorlan
{

/// One additional value of the product key.
struct INSTALLER_EXPORT RegistryData
{
    QString group;  ///< sub-key path with "/" between its parts, may be empty
    QString name;   ///< value name
    QVariant value; ///< its type is that of the registry value: int is REG_DWORD, text REG_SZ
};

/// A program that Windows finds by its name (App Paths), with a shortcut in the Start menu.
struct INSTALLER_EXPORT ExecutableInfo
{
    QString fileName;    ///< also the name that Windows finds it by
    QString description; ///< untranslated name of the shortcut
    QString arguments;   ///< one command line, may be empty
};

/// A program that AutoPlay offers for certain events.
struct INSTALLER_EXPORT AutoPlayAssociation
{
    QString name;          ///< suffix of the handler and of the ProgID, and the verb
    QString executable;    ///< what AutoPlay starts
    QStringList arguments; ///< each is quoted in the command
    QString action;        ///< untranslated text that AutoPlay shows
    QStringList events;    ///< AutoPlay's names, for example "PlayDVDMovieOnArrival"
};

/// A program that opens files of certain extensions.
struct INSTALLER_EXPORT ExtensionAssociation
{
    QString name;             ///< ProgID suffix; the extension follows it
    QString executable;       ///< what opens the files
    QStringList arguments;    ///< each is quoted in the command
    QStringList extensions;   ///< with their leading dot
    bool makeDefault = false; ///< the default ProgID instead of an open-with candidate
};

/// An entry of the list of installed programs.
struct INSTALLER_EXPORT ProgramInfo
{
    QString displayName;    ///< also the name of the entry's key
    QString displayVersion; ///< for example "24.5.1"
    QString installDate;    ///< year, month and day as numbers without leading zeros: "202459"
    QString publisher;      ///< the maker's name
    QString language;       ///< locale code, for example "de_DE"
    qint64 sizeBytes = 0;   ///< stored in whole KiB
};

} // namespace Vorlan
