#include "RemovalGuard.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Vorlan::FrontEnd
{
namespace
{

// Without links, "." and "..", and with a separator at the end.
QString Normalized(const QString& folder)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    const QString path =
        real.isEmpty() ? QDir::cleanPath(QDir::fromNativeSeparators(folder)) : real;
    return path.endsWith('/') ? path : path + '/';
}

// Case is ignored on every system, because a refusal too many does no damage.
bool IsInside(const QString& inner, const QString& outer)
{
    return Normalized(inner).startsWith(Normalized(outer), Qt::CaseInsensitive);
}

// Qt counts "C:" and "\\name" as absolute, which depend on the current folder.
bool IsAbsolute(const QString& path)
{
    return QDir::separator() == '\\' ? path.mid(1, 2) == ":/" : path.startsWith('/');
}

QString Parent(const QString& folder)
{
    return QFileInfo(QDir(Normalized(folder)).absolutePath()).path();
}

// `touches` has one of the folders, which may be empty.
template <typename Condition>
bool IsAnyOf(const QStringList& folders, Condition touches)
{
    return std::any_of(folders.begin(), folders.end(),
        [&](const QString& place) { return !place.isEmpty() && touches(place); });
}

} // namespace

QString FindRemovalObjection(const QString& folder)
{
    const QString path = QDir::cleanPath(QDir::fromNativeSeparators(folder));
    const QFileInfo info(path);
    if (!IsAbsolute(path))
        return "no absolute path";
    if (!info.isDir())
        return "no folder";
    if (info.isRoot())
        return "a root";
    if (info.isSymbolicLink() || info.isJunction())
        return "a link";
    const SystemFolders system = FindSystemFolders();
    const auto isAround = [&](const QString& place) { return IsInside(place, folder); };
    const auto isWithin = [&](const QString& place) { return IsInside(folder, place); };
    if (IsAnyOf(system.closed, isWithin) || IsAnyOf(system.closed + system.shared, isAround))
        return "a folder of the system";
    const auto isBeside = [&](const QString& home)
    { return Parent(folder).compare(Parent(home), Qt::CaseInsensitive) == 0; };
    if (IsAnyOf(system.homes, isBeside) || IsAnyOf(system.homes + system.personal, isAround))
        return "a home folder";
    return {};
}

} // namespace Vorlan::FrontEnd
