#include "FolderRemoval.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace Vorlan::FrontEnd
{

FolderRemoval::FolderRemoval(const QString& productFolder, const PlacedFiles& placedFiles)
    : folder(productFolder), placed(placedFiles), inUse(productFolder)
{
}

void FolderRemoval::RemoveOwn()
{
    const FolderContent content = SortContent(folder, placed);
    for (const QString& path : content.own)
    {
        if (!QFile::remove(QDir(folder).filePath(path)) && !inUse.Take(path))
            left.push_back({path, -1});
    }
    RemoveEmptyFolders(content);
}

void FolderRemoval::RemoveForeign()
{
    const FolderContent content = SortContent(folder, placed);
    for (const QString& path : content.foreign)
    {
        qInfo().noquote() << "Not of the program, removed with the folder:" << path;
        inUse.Take(path.endsWith('/') ? path.chopped(1) : path);
    }
    RemoveEmptyFolders(content);
}

void FolderRemoval::RemoveEmptyFolders(const FolderContent& content) const
{
    for (const QString& path : content.ownFolders)
        QDir(folder).rmdir(path);
}

QStringList FolderRemoval::RemoveFolder()
{
    if (left.empty())
        PlacedFiles::RemoveFrom(folder);
    else
        PlacedFiles(PlacedFiles::State::Complete, left).Write(folder);
    QDir().rmdir(folder);
    const FolderContent content = SortContent(folder, placed);
    QStringList staying = content.own + content.foreign;
    for (const QString& path : qAsConst(staying))
        qInfo().noquote() << "Stays in" << QDir::toNativeSeparators(folder) + ':' << path;
    return staying;
}

} // namespace Vorlan::FrontEnd
