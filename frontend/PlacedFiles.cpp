#include "PlacedFiles.h"

#include "KeptFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr char listName[] = "placed.txt";
constexpr char header[] = "placed files, format 1, ";
constexpr char completeWord[] = "complete";
constexpr char unfinishedWord[] = "unfinished";

QString ListPath(const QString& folder)
{
    return QDir(folder).filePath(PlacedFiles::DataFolder() + '/' + listName);
}

QString KeyOf(const QString& path)
{
    return QDir::separator() == '\\' ? path.toLower() : path;
}

// A list that was changed must not lead out of its folder.
bool IsInside(const QString& path)
{
    static const QRegularExpression outside(R"(^/|\\|:|(^|/)(\.\.?)?(/|$))");
    return !path.isEmpty() && !path.contains(outside);
}

bool IsLink(const QFileInfo& info)
{
    return info.isSymbolicLink() || info.isJunction();
}

void Sort(
    const QDir& folder, const QString& below, const PlacedFiles& placed, FolderContent& content)
{
    const QDir::Filters all = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    for (const QFileInfo& info : QDir(folder.filePath(below)).entryInfoList(all))
    {
        const QString path = below + info.fileName();
        if (path == PlacedFiles::DataFolder() || path == InnerKeepingFolder())
            continue;
        const bool isFolder = info.isDir() && !IsLink(info);
        if (isFolder && placed.IsAround(path))
        {
            Sort(folder, path + '/', placed, content);
            content.ownFolders += path;
        }
        else if (!isFolder && !IsLink(info) && placed.Contains(path, info.size()))
            content.own += path;
        else
            content.foreign += isFolder ? path + '/' : path;
    }
}

} // namespace

PlacedFiles::PlacedFiles(State listState, const std::vector<File>& listed) : state(listState)
{
    for (const File& file : listed)
    {
        if (!IsInside(file.path))
            continue;
        files.insert(KeyOf(file.path), file);
        for (int slash = file.path.lastIndexOf('/'); slash > 0;
             slash = file.path.lastIndexOf('/', slash - 1))
            folders.insert(KeyOf(file.path.left(slash)));
    }
}

QString PlacedFiles::DataFolder()
{
    return QStringLiteral("uninst.data");
}

bool PlacedFiles::IsIn(const QString& folder)
{
    return QFile::exists(ListPath(folder));
}

void PlacedFiles::RemoveFrom(const QString& folder)
{
    QFile::remove(ListPath(folder));
    QDir(folder).rmdir(DataFolder());
}

std::optional<PlacedFiles> PlacedFiles::Read(const QString& folder)
{
    QFile file(ListPath(folder));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString first = QString::fromUtf8(file.readLine()).trimmed();
    if (first != QString(header) + completeWord && first != QString(header) + unfinishedWord)
        return {};
    std::vector<File> listed;
    while (!file.atEnd())
    {
        const QString line = QString::fromUtf8(file.readLine()).remove('\n');
        bool isNumber = false;
        const qint64 size = line.section('\t', 0, 0).toLongLong(&isNumber);
        if (!isNumber)
            return {};
        listed.push_back({line.section('\t', 1), size});
    }
    return PlacedFiles(
        first.endsWith(unfinishedWord) ? State::Unfinished : State::Complete, listed);
}

bool PlacedFiles::Write(const QString& folder) const
{
    if (!QDir(folder).mkpath(DataFolder()))
        return false;
    QSaveFile file(ListPath(folder));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const char* const word = state == State::Complete ? completeWord : unfinishedWord;
    file.write(QByteArray(header) + word + '\n');
    for (const File& listed : Files())
        file.write(QByteArray::number(listed.size) + '\t' + listed.path.toUtf8() + '\n');
    return file.commit();
}

bool PlacedFiles::Contains(const QString& path, qint64 size) const
{
    const auto found = files.find(KeyOf(path));
    return found != files.end() &&
           (state == State::Complete || found->size < 0 || found->size == size);
}

bool PlacedFiles::IsAround(const QString& subFolder) const
{
    return folders.contains(KeyOf(subFolder));
}

std::vector<PlacedFiles::File> PlacedFiles::Files() const
{
    QStringList keys = files.keys();
    keys.sort();
    std::vector<File> sorted;
    for (const QString& key : keys)
        sorted.push_back(files.value(key));
    return sorted;
}

PlacedFiles PlacedFiles::With(const std::vector<File>& further) const
{
    std::vector<File> all = further;
    for (const File& file : files)
        all.push_back(file);
    return {state, all};
}

FolderContent SortContent(const QString& folder, const PlacedFiles& placed)
{
    FolderContent content;
    Sort(QDir(folder), QString(), placed, content);
    return content;
}

} // namespace Vorlan::FrontEnd
