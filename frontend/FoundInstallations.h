#pragma once

#include "base/InstallationSettings.h"

#include <QSettings>
#include <QString>

#include <optional>

namespace Vorlan::FrontEnd
{

// An installation of the product on this machine.
struct Installation
{
    QSettings::Scope scope = QSettings::UserScope;
    QString folder;  // absolute, without a separator at its end
    QString version; // "24.5.1"; may be empty
    bool hasShortcuts = false;
    bool hasContextMenu = false;
};

QSettings::Scope OtherScope(QSettings::Scope scope);

// What is installed for this user and for all users. Folders with another name than the product's
// do not count: files of other programs may be in them.
struct FoundInstallations
{
    std::optional<Installation> ofUser;
    std::optional<Installation> ofAllUsers;

    const Installation* Of(QSettings::Scope scope) const;
    // The one that an installation without options is about: the user's own first.
    const Installation* Proposed() const;
};

// The folder that the product's records name, as it is written there; empty if there is none.
QString RegisteredFolder(QSettings::Scope scope);

// Reads the registry, the shortcuts and the file system; changes nothing.
FoundInstallations FindInstallations();

// Starts the uninstaller in this folder, with its window, and does not wait for it. It runs even if
// this setup has not ended yet.
void StartUninstaller(const QString& folder);

// What an installation does to this one.
enum class Change
{
    Install,
    Update,
    Repair,   // the same version
    Downgrade // the installed one is newer
};

Change ChangeOf(const Installation* installed);

// The folder of a first installation, with a separator at its end: the program folder of the system
// for all users, else the engine's proposal.
QString DefaultFolder(const InstallationSettings& proposal);

// The engine's proposal for its scope, with the folder and the choices of the installed version.
InstallationSettings ProposeSettings(
    InstallationSettings proposal, const FoundInstallations& found);

} // namespace Vorlan::FrontEnd
