#pragma once

#include <QString>

#include <map>

namespace Vorlan
{

// Which browser downloaded an installer, by a marker in the installer's file name. Consulted in key
// order; the first marker that occurs in the name counts.
inline const std::map<QString, QString> browserTable = {
    {"SetupC", "chrome.exe"},
    {"SetupE", "msedge.exe"},
    {"SetupF", "firefox.exe"},
    {"SetupI", "iexplore.exe"},
    {"SetupO", "launcher.exe"},
    {"SetupS", "safari.exe"},
    {"SetupY", "browser.exe"},
};

} // namespace Vorlan
