#include "FolderUpdate.h"

#include "FolderRemoval.h"
#include "KeptFiles.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace Vorlan::FrontEnd
{
namespace
{

using State = PlacedFiles::State;

// Everything that is not listed, except links to folders in place of folders of ours: a user may
// have moved these to another drive, and the engine places files through them.
QStringList ForeignIn(const QString& folder, const PlacedFiles& own)
{
    QStringList foreign = SortContent(folder, own).foreign;
    const auto isMovedFolder = [&](const QString& path)
    { return own.IsAround(path) && QFileInfo(QDir(folder).filePath(path)).isDir(); };
    foreign.erase(std::remove_if(foreign.begin(), foreign.end(), isMovedFolder), foreign.end());
    return foreign;
}

// The engine would write over these.
QStringList InTheWayOf(const PlacedFiles& payload, const QStringList& foreign)
{
    QStringList inTheWay;
    for (const QString& path : foreign)
    {
        const QString name = path.endsWith('/') ? path.chopped(1) : path;
        if (payload.Contains(name, -1) || payload.IsAround(name))
            inTheWay += path;
    }
    return inTheWay;
}

// Those of every version: only their sizes are not known before the run.
std::vector<PlacedFiles::File> KnownFiles(const std::vector<PlacedFiles::File>& placed)
{
    std::vector<PlacedFiles::File> known;
    std::copy_if(placed.begin(), placed.end(), std::back_inserter(known),
        [](const PlacedFiles::File& file) { return file.size < 0; });
    return known;
}

bool IsSamePlace(const QString& left, const QString& right)
{
    return !left.isEmpty() && QDir(left) == QDir(right);
}

} // namespace

FolderUpdate::FolderUpdate(const QString& newFolder, const QString& formerFolder,
    const std::vector<PlacedFiles::File>& placed)
    : folder(QDir::cleanPath(QDir::fromNativeSeparators(newFolder))),
      former(IsSamePlace(formerFolder, newFolder) ? folder : formerFolder),
      payloadFiles(placed),
      payload(State::Complete, placed)
{
    ReturnKeptFiles(folder);
    if (!former.isEmpty())
        ReturnKeptFiles(former);
    formerList = PlacedFiles::Read(former);
    if (formerList)
        formerList = formerList->With(KnownFiles(placed));
}

QString FolderUpdate::Begin()
{
    if (!former.isEmpty())
    {
        const QString stuck = KeepFiles(
            former, ForeignIn(former, formerList.value_or(payload)), KeepingPlace::Beside);
        if (stuck.isEmpty() && !formerList)
            payload.Write(former); // for its uninstaller
        if (IsInPlace() || !stuck.isEmpty())
            return stuck.isEmpty() ? QString() : QDir(former).filePath(stuck);
    }
    if (IsSamePlace(folder, QCoreApplication::applicationDirPath()))
        return {}; // what lies there is the setup's, and is copied to itself
    // Without a list, the rest of an installation that was cut off.
    const PlacedFiles own =
        PlacedFiles::Read(folder).value_or(PlacedFiles(State::Unfinished, payloadFiles));
    const QString stuck =
        KeepFiles(folder, InTheWayOf(payload, ForeignIn(folder, own)), KeepingPlace::Inside);
    return stuck.isEmpty() ? QString() : QDir(folder).filePath(stuck);
}

// If the run is cut off, what is listed by then is ours if it has the size that it will have.
void FolderUpdate::BeginPlacing() const
{
    std::vector<PlacedFiles::File> files;
    const auto before = PlacedFiles::Read(folder);
    if (before)
        files = before->Files();
    if (!PlacedFiles(State::Unfinished, payloadFiles).With(files).Write(folder))
        qWarning() << "The list of placed files cannot be written in" << folder;
}

void FolderUpdate::Complete()
{
    RemoveDeadFiles();
    if (!PlacedNow().Write(folder))
        qWarning() << "The list of placed files cannot be written in" << folder;
}

// What the version before has placed, and its uninstaller has left.
void FolderUpdate::RemoveDeadFiles()
{
    if (former.isEmpty() || !QDir(former).exists())
        return;
    std::vector<PlacedFiles::File> dead;
    const PlacedFiles before = formerList.value_or(payload);
    for (const PlacedFiles::File& file : before.Files())
    {
        if (!IsInPlace() || !payload.Contains(file.path, -1))
            dead.push_back(file);
    }
    FolderRemoval removal(former, PlacedFiles(State::Complete, dead));
    removal.RemoveOwn();
    if (IsInPlace())
        payloadFiles.insert(payloadFiles.end(), removal.Left().begin(), removal.Left().end());
    else
        removal.RemoveFolder();
    removal.ScheduleRest();
}

PlacedFiles FolderUpdate::PlacedNow() const
{
    std::vector<PlacedFiles::File> files;
    for (const QString& path : SortContent(folder, PlacedFiles(State::Complete, payloadFiles)).own)
        files.push_back({path, QFileInfo(QDir(folder).filePath(path)).size()});
    return {State::Complete, files};
}

QStringList FolderUpdate::End() const
{
    const QStringList staying = ReturnKeptFiles(folder);
    return IsInPlace() || former.isEmpty() ? staying : staying + ReturnKeptFiles(former);
}

} // namespace Vorlan::FrontEnd
