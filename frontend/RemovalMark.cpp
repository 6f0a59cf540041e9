#include "RemovalMark.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <QUuid>

#include <algorithm>

namespace Vorlan::FrontEnd
{
namespace
{

// These names are also in the deletion scripts, resources/Batch/uninstallDelayedDir.*.
constexpr char markName[] = "uninst.unfinished";
constexpr char identityVariable[] = "VORLAN_REMOVAL";
constexpr char claimSuffix[] = ".claimed";

constexpr int mostWaits = 100;

// A script that was copied earlier than that was stopped before its end.
constexpr int longestRemoval = 60; // s

QString MarkPath(const QString& folder)
{
    return QDir(folder).filePath(markName);
}

// Identities in the mark, and the claim of a script. A link is not a mark.
QStringList PendingRemovals(const QString& markPath)
{
    const QFileInfo mark(markPath);
    if (mark.isSymbolicLink() || mark.isJunction())
    {
        return {};
    }
    static const QRegularExpression own("^[0-9a-f]{8}(\\.claimed)?$");
    return QDir(markPath).entryList(QDir::Files | QDir::Hidden | QDir::System).filter(own);
}

// A claim belongs to the script, which renames the folder or gives the claim back.
bool CancelRemovalOf(const QString& folder, const std::function<void()>& wait)
{
    const QString mark = MarkPath(folder);
    for (int waits = 0;; ++waits)
    {
        for (const QString& name : PendingRemovals(mark))
        {
            if (!name.endsWith(claimSuffix))
            {
                QFile::remove(QDir(mark).filePath(name));
            }
        }
        if (PendingRemovals(mark).isEmpty())
        {
            QDir().rmdir(mark);
            return true;
        }
        if (waits == mostWaits)
        {
            return false;
        }
        wait();
    }
}

// Scripts of older versions heed no mark; they delete themselves after the folder, which
// they do not name.
bool IsOlderScriptRunning()
{
    const QDir folder(QDir::tempPath());
    const QFileInfoList copies = folder.entryInfoList({"{*-*-*-*-*}.bat"}, QDir::Files);
    return std::any_of(copies.begin(), copies.end(),
        [](const QFileInfo& copy)
        {
            QFile file(copy.filePath());
            if (copy.lastModified().secsTo(QDateTime::currentDateTime()) > longestRemoval ||
                !file.open(QIODevice::ReadOnly))
            {
                return false;
            }
            const QByteArray text = file.read(10000);
            return text.contains("Removes one folder with everything in it after a delay") &&
                   !text.contains(markName);
        });
}

bool WaitForOlderScripts(const std::function<void()>& wait)
{
    for (int waits = 0; IsOlderScriptRunning(); ++waits)
    {
        if (waits == mostWaits)
        {
            return false;
        }
        wait();
    }
    return true;
}

bool WriteIdentity(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("removal\n") > 0 && file.flush();
}

} // namespace

RemovalMark::RemovalMark(const QString& markedFolder, bool isFullRemoval) : folder(markedFolder)
{
    const bool isCancelled = CancelRemovalOf(folder, WaitForScript);
    QDir().mkpath(MarkPath(folder));
    if (!isFullRemoval)
    {
        return;
    }
    identity = QUuid::createUuid().toString(QUuid::Id128).left(8);
    qputenv(identityVariable, identity.toLatin1());
    if (isCancelled)
    {
        WriteIdentity(QDir(MarkPath(folder)).filePath(identity));
    }
}

bool RemovalMark::IsComplete() const
{
    return QFileInfo(QDir(MarkPath(folder)).filePath(identity)).size() > 0;
}

void RemovalMark::Finish() const
{
    CancelRemovalOf(folder, WaitForScript);
}

bool RemovalMark::IsIn(const QString& folder)
{
    return QDir(folder).exists(markName);
}

void WaitForScript()
{
    QThread::msleep(100);
}

bool CancelRemovals(const QString& folder, const std::function<void()>& wait)
{
    QFileInfo existing(QDir::cleanPath(QDir::fromNativeSeparators(folder)));
    while (!existing.exists() && !existing.isRoot())
    {
        existing.setFile(existing.path());
    }
    const QString real = existing.canonicalFilePath();
    QDir place(real.isEmpty() ? existing.absoluteFilePath() : real);
    bool isCancelled = WaitForOlderScripts(wait);
    for (bool isBelowRoot = true; isCancelled && isBelowRoot; isBelowRoot = place.cdUp())
    {
        isCancelled = CancelRemovalOf(place.path(), wait);
    }
    return isCancelled;
}

} // namespace Vorlan::FrontEnd
