#include "Obstacles.h"

#include "Await.h"
#include "base/ProductProfile.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <map>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr char companionProgram[] = "RouterApplication.exe";
constexpr std::chrono::seconds systemLimit(10);

bool IsEndedByEngine(const FileHolder& holder, const ObstacleRules& rules)
{
    const QFileInfo image(holder.image);
    const bool isThere = !rules.endedFolder.isEmpty() &&
                         image.canonicalPath() == QDir(rules.endedFolder).canonicalPath();
    return isThere && (rules.endedPrograms.isEmpty() ||
                          rules.endedPrograms.contains(image.fileName(), Qt::CaseInsensitive));
}

std::vector<FileHolder> FindOthers(const ObstacleRules& rules, const FindHolders& find)
{
    std::vector<FileHolder> holders = Await([rules, find] { return FindObstacles(rules, find); });
    const auto isEnded = [&](const FileHolder& holder) { return IsEndedByEngine(holder, rules); };
    holders.erase(std::remove_if(holders.begin(), holders.end(), isEnded), holders.end());
    return holders;
}

bool AreAllOfTheSystem(const std::vector<FileHolder>& holders)
{
    return !holders.empty() && std::all_of(holders.begin(), holders.end(),
                                   [](const FileHolder& holder) { return holder.isCritical; });
}

QString InUseText(const std::vector<FileHolder>& holders, bool mayClose)
{
    QStringList names;
    for (const FileHolder& holder : holders)
        names << HolderText(holder);
    return QString("Nothing was changed, because these programs use files of the product: %1. %2")
        .arg(names.join(", "), mayClose ? "They could not be closed: end them, and try again."
                                        : "End them, or give /CLOSEAPPS.");
}

} // namespace

ObstacleRules InstallationRules(const QString& folder, const QString& previousFolder)
{
    QStringList folders(folder);
    if (!previousFolder.isEmpty() && QDir(previousFolder) != QDir(folder))
        folders << previousFolder;
    return {folders, folder, {}};
}

ObstacleRules UninstallationRules(const QString& folder)
{
    return {QStringList(folder), folder, QStringList(companionProgram)};
}

std::vector<FileHolder> FindObstacles(const ObstacleRules& rules, const FindHolders& find)
{
    std::map<qint64, FileHolder> found;
    for (const QString& folder : rules.folders)
    {
        for (const FileHolder& holder : find(folder))
            found.emplace(holder.processId, holder);
    }
    std::vector<FileHolder> holders;
    for (const auto& [id, holder] : found)
    {
        qInfo().noquote() << "Files of the product are in use by" << HolderText(holder)
                          << QDir::toNativeSeparators(holder.image);
        holders.push_back(holder);
    }
    return holders;
}

Outcome RemoveObstacles(
    const ObstacleRules& rules, bool mayClose, const ProcessAccess& access, const FindHolders& find)
{
    std::vector<FileHolder> holders = FindOthers(rules, find);
    if (mayClose && !holders.empty())
    {
        EndHolders(AskToClose(holders, access), access);
        holders = FindOthers(rules, find);
    }
    const auto start = access.now();
    while (AreAllOfTheSystem(holders) && access.now() - start < systemLimit)
    {
        access.pause();
        holders = FindOthers(rules, find);
    }
    return holders.empty() ? Outcome()
                           : Outcome{ExitCode::FilesInUse, InUseText(holders, mayClose)};
}

} // namespace Vorlan::FrontEnd
