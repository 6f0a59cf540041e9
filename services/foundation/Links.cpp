#include "platform/Links.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Vorlan::Platform
{

namespace
{

bool IsLink(const QFileInfo& entry)
{
    return entry.isSymbolicLink() || entry.isJunction();
}

// On Windows a link to a folder is removed as a folder, and a read-only file not at all.
bool RemoveFileOrLink(const QString& path)
{
    if (QFile::remove(path) || QDir().rmdir(path))
        return true;
    return !IsLink(QFileInfo(path)) &&
           QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteUser) &&
           QFile::remove(path);
}

} // namespace

void RemoveFileLink(const QString& path)
{
    if (QFileInfo(path).isSymbolicLink())
        QFile::remove(path);
}

bool RemoveFolder(const QString& folder)
{
    // With a separator at its end, a path leads behind a link.
    const QString path = QDir::cleanPath(folder);
    if (IsLink(QFileInfo(path)))
        return RemoveFileOrLink(path);
    bool areGone = true;
    for (const QFileInfo& entry : QDir(path).entryInfoList(
             QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
    {
        const bool isFolder = entry.isDir() && !IsLink(entry);
        const bool isGone =
            isFolder ? RemoveFolder(entry.filePath()) : RemoveFileOrLink(entry.filePath());
        areGone = isGone && areGone;
    }
    return QDir().rmdir(path) && areGone;
}

} // namespace Vorlan::Platform
