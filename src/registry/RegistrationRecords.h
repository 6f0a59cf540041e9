#pragma once

#include "installer/Export.h"

#include <QString>
#include <QStringList>
#include <QVariant>

// What is registered with the system, as plain data. Executables are file names relative to the
// installation folder.
namespace Vorlan
{

// One additional value of the product key.
struct INSTALLER_EXPORT RegistryData
{
    QString group; // sub-key path, may be empty
    QString name;
    QVariant value;
};

struct INSTALLER_EXPORT ExecutableInfo
{
    QString fileName;
    QString description; // untranslated
    QString arguments;   // may be empty
};

// A program that AutoPlay offers for certain events.
struct INSTALLER_EXPORT AutoPlayAssociation
{
    QString name; // suffix of the handler and verb
    QString executable;
    QStringList arguments;
    QString action;     // untranslated text that AutoPlay shows
    QStringList events; // AutoPlay event names
};

// A program that opens files of certain extensions.
struct INSTALLER_EXPORT ExtensionAssociation
{
    QString name; // ProgID suffix
    QString executable;
    QStringList arguments;
    QStringList extensions;   // with their leading dot
    bool makeDefault = false; // the default ProgID instead of an open-with candidate
};

// An entry of the list of installed programs.
struct INSTALLER_EXPORT ProgramInfo
{
    QString displayName; // also the name of the entry's key
    QString displayVersion;
    QString installDate;
    QString publisher;
    QString language;
    qint64 sizeBytes = 0;
};

} // namespace Vorlan
