#include "FileHolders.h"

#include "HolderProcess.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

namespace Vorlan::FrontEnd
{
namespace
{

namespace fs = std::filesystem;

// A file or a folder, without links in its path.
class Place
{
public:
    explicit Place(const QString& path)
        : name(QFile::encodeName(QFileInfo(path).canonicalFilePath()).toStdString())
    {
    }

    bool Exists() const { return !name.empty(); }

    // The system adds " (deleted)" to the name of a file that is gone, which nothing waits for.
    bool Contains(const std::string& file) const
    {
        constexpr char gone[] = " (deleted)";
        const bool isInside =
            file.rfind(name, 0) == 0 && (file.size() == name.size() || file[name.size()] == '/');
        return isInside && file.find(gone, file.size() - std::min(file.size(), sizeof gone - 1)) ==
                               std::string::npos;
    }

private:
    std::string name;
};

std::string LinkTarget(const fs::path& link)
{
    std::error_code error;
    return fs::read_symlink(link, error).string();
}

bool HasOpen(const fs::path& process, const Place& place)
{
    std::error_code error;
    for (fs::directory_iterator file(process / "fd", error), end; file != end && !error;
         file.increment(error))
    {
        if (place.Contains(LinkTarget(file->path())))
            return true;
    }
    return false;
}

// The files that the process has mapped, each as often as it has parts.
template <typename Condition>
bool IsAnyMapped(const fs::path& process, Condition condition)
{
    std::ifstream maps(process / "maps");
    for (std::string line; std::getline(maps, line);)
    {
        const std::size_t path = line.find('/');
        if (path != std::string::npos && condition(line.substr(path)))
            return true;
    }
    return false;
}

bool IsHolder(const fs::path& process, const Place& place)
{
    return place.Contains(LinkTarget(process / "exe")) || HasOpen(process, place) ||
           IsAnyMapped(process, [&](const std::string& file) { return place.Contains(file); });
}

// Nothing says which process a window belongs to: one that talks to a window system may have one.
bool MayHaveWindow(const fs::path& process)
{
    return IsAnyMapped(process,
        [](const std::string& file)
        {
            return file.find("/libxcb.so") != std::string::npos ||
                   file.find("/libwayland-client.so") != std::string::npos;
        });
}

FileHolder Describe(const fs::path& process, qint64 id)
{
    FileHolder holder;
    holder.processId = id;
    holder.startTime = StartTimeOf(id);
    holder.image = QFile::decodeName(LinkTarget(process / "exe").c_str());
    holder.name = QFileInfo(holder.image).fileName();
    holder.hasWindow = MayHaveWindow(process);
    holder.isCritical = id == 1;
    return holder;
}

} // namespace

std::vector<FileHolder> FindFileHolders(const QString& path)
{
    std::vector<FileHolder> holders;
    const Place place(path);
    if (!place.Exists())
        return holders;
    const std::set<qint64> own = OwnProcessIds();
    std::error_code error;
    for (fs::directory_iterator process("/proc", error), end; process != end && !error;
         process.increment(error))
    {
        bool isProcess = false;
        const qint64 id =
            QString::fromStdString(process->path().filename().string()).toLongLong(&isProcess);
        if (isProcess && own.count(id) == 0 && IsHolder(process->path(), place))
            holders.push_back(Describe(process->path(), id));
    }
    std::sort(holders.begin(), holders.end(),
        [](const FileHolder& one, const FileHolder& other)
        { return one.processId < other.processId; });
    return holders;
}

} // namespace Vorlan::FrontEnd
