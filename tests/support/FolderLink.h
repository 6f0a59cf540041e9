#pragma once

#include <QString>

// Makes a link to a folder: a symbolic link on Linux and under Wine, a junction on Windows.
void MakeFolderLink(const QString& link, const QString& target);

// Whether "rd /s" leaves alone what lies behind a link. Wine's does not.
bool IsRemovalOfFoldersSafe();
