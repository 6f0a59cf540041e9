#pragma once

#include "installer/InstallationSettings.h"
#include "network/AdditionalDataTable.h"
#include "registry/RegistrationRecords.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

namespace Vorlan
{

// The product's fixed tables: what is registered, moved and run around an installation. Filled once
// when a mediator is constructed and read-only afterwards.
struct RegistrationProfile
{
    using Action = std::function<void(const InstallationSettings&)>;

    QList<ExecutableInfo> appPaths;
    QList<AutoPlayAssociation> autoPlayAssociations;
    QList<ExtensionAssociation> extensionAssociations;
    QStringList contextMenuExtensions;
    QString contextMenuExecutable;
    QString autoLaunchExecutable;
    QString autoLaunchParameters;
    QString autoLaunchAppId;
    QString mainExecutable;
    QString protocolHandler; // file name without ".exe"
    QString protocolScheme;
    QList<RegistryData> additionalValues;
    QMap<QString, QString> outputNames; // file of the installation folder -> path below the
                                        // all-users application-data folder
    qint32 defaultAppType = 0;

    Installer::AdditionalDataTable additionalData;
    QStringList additionalModules; // names of the uninstall entries of additional modules
    bool stopProcesses = false;    // end the product's programs before files are touched
    qint32 mode = 0;
    Action afterInstall;   // may be empty
    Action afterUninstall; // may be empty
};

// The profile of this product.
RegistrationProfile CreateProductProfile();

} // namespace Vorlan
