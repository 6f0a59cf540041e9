#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace Vorlan::Platform
{

// The path itself, or the first of its parents that exists.
inline QFileInfo NearestExisting(const QString& path)
{
    QFileInfo info(QDir::cleanPath(path));
    while (!info.exists() && !info.isRoot())
        info.setFile(info.path());
    return info;
}

} // namespace Vorlan::Platform
