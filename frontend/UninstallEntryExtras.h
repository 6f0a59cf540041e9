#pragma once

#include <QSettings>
#include <QString>

namespace Vorlan::FrontEnd
{

// The front end's own values of the product's entry in the list of installed programs, which is
// removed as a whole by an uninstallation: how the product is uninstalled without windows, and that
// it can be neither changed nor repaired from there, because the setup is not kept.
struct UninstallEntryExtras
{
    // Writes the values for the product in this folder. If the entry is missing or cannot be
    // written, a line is logged.
    static void Write(QSettings::Scope scope, const QString& folder);
};

} // namespace Vorlan::FrontEnd
