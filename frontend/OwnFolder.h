#pragma once

#include <QSettings>
#include <QString>

namespace Vorlan::FrontEnd
{

// Result of checking the uninstaller's own folder, whose files it would delete.
struct OwnFolder
{
    QSettings::Scope scope; // for whom the product is installed
    QString refusal;        // why nothing may be deleted; empty if it may
    QString installed;      // the folder of the installation elsewhere; empty if there is none
};

// Looks up the product in the registry, in this user's root first. Deleting is refused if another
// folder is registered, if the folder has neither a list of placed files nor, being registered, the
// product's name, or being unregistered, the main program.
OwnFolder ExamineOwnFolder(const QString& folder, QSettings::Scope defaultScope);

} // namespace Vorlan::FrontEnd
