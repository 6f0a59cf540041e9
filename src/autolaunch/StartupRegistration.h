#pragma once

#include "autolaunch/IAutoLauncherLogic.h"
#include "autolaunch/PriorityAutoLauncherLogic.h"

#include <QSettings>

#include <memory>
#include <string>

namespace Vorlan
{

// A program to start at logon.
struct AutoLaunchApp
{
    std::string appId;
    std::string path;
    std::string cmdParameters;
};

// The product that it belongs to.
struct AutoLaunchProduct
{
    std::string company;
    std::string productId;
    std::string versionMajor;
    std::string versionMinor; // minor and patch number: "5.1"
};

// The product that this engine is built for.
AutoLaunchProduct ThisProduct();

// The priority rule for one program of a product, over the Run key. Built for one call.
class StartupRegistration
{
public:
    // Throws std::runtime_error when the version cannot be read.
    StartupRegistration(
        QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);

    IAutoLauncherLogic& Logic() { return *logic; }

private:
    std::string appId;
    PriorityAutoLauncherLogic::Priorities priorities;
    std::unique_ptr<IAutoLauncherLogic> logic;
};

// The guarded entry points: nothing here throws, failures are logged.
void AddAppToStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);
// False after a failure.
bool IsAppInStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);
void RemoveAppFromStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);

} // namespace Vorlan
