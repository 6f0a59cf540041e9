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
};

// Looks up the product in the registry, in this user's root first. Deleting is refused if another
// folder is registered, if the folder is registered under another name than the product's, or if
// the product is not registered and the folder has neither its main program nor the mark of an
// interrupted removal.
OwnFolder ExamineOwnFolder(const QString& folder, QSettings::Scope defaultScope);

} // namespace Vorlan::FrontEnd
