#include "KeptFiles.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{
namespace
{

QString PathOf(KeepingPlace place, const QString& folder)
{
    return QDir::cleanPath(folder) + (place == KeepingPlace::Inside ? '/' : '.') +
           InnerKeepingFolder();
}

bool IsRealFolder(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && !info.isSymbolicLink() && !info.isJunction();
}

QFileInfoList Entries(const QString& folder)
{
    return QDir(folder).entryInfoList(
        QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
}

// Merges the content of a folder into another one; what is in the way of something stays.
void MoveContent(const QString& from, const QString& to, QStringList& staying)
{
    for (const QFileInfo& entry : Entries(from))
    {
        const QString target = QDir(to).filePath(entry.fileName());
        if (IsRealFolder(entry.filePath()) && IsRealFolder(target))
            MoveContent(entry.filePath(), target, staying);
        else if (!QDir().mkpath(to) || !QFile::rename(entry.filePath(), target))
            staying += entry.absoluteFilePath();
    }
    QDir().rmdir(from);
}

QString MoveAway(const QString& folder, const QStringList& paths, const QString& place)
{
    for (QString path : paths)
    {
        if (path.endsWith('/'))
            path.chop(1);
        const QString target = QDir(place).filePath(path);
        if (!QDir().mkpath(QFileInfo(target).path()) ||
            !QFile::rename(QDir(folder).filePath(path), target))
            return path;
    }
    return {};
}

} // namespace

QString InnerKeepingFolder()
{
    return QStringLiteral("uninst.kept");
}

QString KeepFiles(const QString& folder, const QStringList& paths, KeepingPlace place)
{
    if (paths.isEmpty())
        return {};
    QString failed;
    for (const KeepingPlace candidate : {place, KeepingPlace::Inside})
    {
        const QString kept = PathOf(candidate, folder);
        failed = MoveAway(folder, paths, kept);
        if (failed.isEmpty())
        {
            qInfo().noquote() << "Not of the program, kept in" << QDir::toNativeSeparators(kept)
                              << "for the time of the run:" << paths.join(", ");
            return {};
        }
        ReturnKeptFiles(folder, candidate);
    }
    return failed;
}

QStringList ReturnKeptFiles(const QString& folder, KeepingPlace place)
{
    const QString kept = PathOf(place, folder);
    QStringList staying;
    if (IsRealFolder(kept))
        MoveContent(kept, folder, staying);
    if (!staying.isEmpty())
        qWarning().noquote() << "Not moved back, because another file has the name:"
                             << staying.join(", ");
    return staying;
}

QStringList ReturnKeptFiles(const QString& folder)
{
    return ReturnKeptFiles(folder, KeepingPlace::Inside) +
           ReturnKeptFiles(folder, KeepingPlace::Beside);
}

} // namespace Vorlan::FrontEnd
