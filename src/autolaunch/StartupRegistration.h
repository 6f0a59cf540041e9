#pragma once

#include <QSettings>

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
    std::string versionMinor;
};

// Start at logon, between products of the maker that share a program. Nothing here throws: failures
// are logged.
void AddAppToStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);
bool IsAppInStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);
void RemoveAppFromStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product);

} // namespace Vorlan
