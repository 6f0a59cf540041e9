#include "RemovalFolder.h"

#include "installer/DelayedDelete.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUuid>

namespace Vorlan::FrontEnd
{
namespace
{

// This name is also in the deletion scripts, resources/Batch/uninstallDelayedDir.*.
constexpr char identityVariable[] = "VORLAN_REMOVAL";

constexpr int delaySeconds = 1;

} // namespace

RemovalFolder::RemovalFolder(const QString& productFolder)
    : folder(QDir::cleanPath(productFolder)),
      identity(QUuid::createUuid().toString(QUuid::Id128).left(8)),
      path(folder + '.' + identity)
{
}

bool RemovalFolder::CanRunScript()
{
    return QTemporaryFile().open();
}

bool RemovalFolder::Take(const QString& taken)
{
    if (!CanRunScript())
        return false;
    const QString source = folder + '/' + taken;
    const QString target = path + '/' + taken;
    if (!QDir().mkpath(QFileInfo(target).path()))
        return false;
    if (QFile::rename(source, target))
        return true;
    const QFileInfo info(source);
    if (!info.isDir() || info.isSymbolicLink() || info.isJunction())
        return false;
    bool isTaken = true;
    for (const QString& name : QDir(source).entryList(
             QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System))
        isTaken = Take(taken + '/' + name) && isTaken;
    return QDir().rmdir(source) && isTaken;
}

void RemovalFolder::ScheduleRemoval() const
{
    if (!QDir(path).exists() || QDir().rmdir(path)) // nothing in it
        return;
    qputenv(identityVariable, identity.toLatin1());
    DelayedDeleteDir(delaySeconds, QDir::toNativeSeparators(folder));
    qunsetenv(identityVariable);
}

} // namespace Vorlan::FrontEnd
