#include "platform/Links.h"

#include "foundation/SystemError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace Vorlan::Platform
{

namespace
{

bool IsLink(const QFileInfo& entry)
{
    return entry.isSymbolicLink() || entry.isJunction();
}

// On Windows a link to a folder is removed as a folder, and a read-only file not at all. 0, or the
// error.
DWORD RemoveFileOrLink(const QString& path)
{
    if (QFile::remove(path) || QDir().rmdir(path))
        return 0;
    const DWORD error = FileError();
    if (IsLink(QFileInfo(path)) ||
        !QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteUser))
        return error;
    return QFile::remove(path) ? 0 : FileError();
}

// 0, or the first error.
DWORD RemoveTree(const QString& path)
{
    if (IsLink(QFileInfo(path)))
        return RemoveFileOrLink(path);
    DWORD firstError = 0;
    const auto keepFirst = [&firstError](DWORD error)
    { firstError = firstError == 0 ? error : firstError; };
    for (const QFileInfo& entry : QDir(path).entryInfoList(
             QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        keepFirst(
            entry.isDir() ? RemoveTree(entry.filePath()) : RemoveFileOrLink(entry.filePath()));
    if (!QDir().rmdir(path))
        keepFirst(FileError());
    return firstError;
}

} // namespace

bool IsSameFile(const QString& left, const QString& right)
{
    const auto path = [](const QString& text)
    { return std::filesystem::u8path(text.toStdString()); };
    std::error_code notThere;
    return std::filesystem::equivalent(path(left), path(right), notThere);
}

void RemoveFileLink(const QString& path)
{
    if (QFileInfo(path).isSymbolicLink())
        QFile::remove(path);
}

bool RemoveFolder(const QString& folder)
{
    // With a separator at its end, a path leads behind a link.
    const DWORD error = RemoveTree(QDir::cleanPath(folder));
    SetLastError(error);
    return error == 0;
}

} // namespace Vorlan::Platform
