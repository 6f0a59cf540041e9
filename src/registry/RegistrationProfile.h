#pragma once

#include "base/InstallationSettings.h"
#include "network/AdditionalDataTable.h"
#include "registry/RegistrationRecords.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

namespace Vorlan
{

// The product's fixed tables: what is registered, moved and run around an installation. One is
// filled when a mediator is constructed and never changed.
// Executables are file names relative to the installation folder; lists may be empty.
struct RegistrationProfile
{
    // A step of the product's own, on the run's thread. What it throws fails the run.
    using Action = std::function<void(const InstallationSettings&)>;

    QList<ExecutableInfo> appPaths; // programs that Windows finds by name; each but the main one
                                    // gets a shortcut of its own
    QList<AutoPlayAssociation> autoPlayAssociations;   // programs that AutoPlay offers
    QList<ExtensionAssociation> extensionAssociations; // programs that open files
    QStringList contextMenuExtensions; // files that get the Explorer verbs; with leading dots
    QString contextMenuExecutable;     // program behind the Explorer verbs
    QString autoLaunchExecutable;      // program that starts at logon
    QString autoLaunchParameters;      // its arguments, as one command line
    QString autoLaunchAppId;           // its name in the logon entry; empty: the product has none
    QString mainExecutable;            // what shortcuts, icons and the end of a run start
    QString protocolHandler;           // program for links; file name without ".exe"
    QString protocolScheme;            // scheme of those links; empty registers none
    QList<RegistryData> additionalValues; // further values of the product key
    QMap<QString, QString> outputNames;   // file of the installation folder -> path below the
                                          // all-users application-data folder that it is moved to
    qint32 defaultAppType = 0;            // the engine's AppType, for the default-apps step

    Installer::AdditionalDataTable additionalData; // empty: nothing can be downloaded
    QStringList additionalModules; // uninstall entries of additional modules, by key name
    bool stopProcesses = false;    // end the product's programs before files are touched
    qint32 mode = 0;               // 1 sets InstallationSettings::profileModeFlag
    Action afterInstall;           // may be empty
    Action afterUninstall;         // may be empty
};

} // namespace Vorlan
