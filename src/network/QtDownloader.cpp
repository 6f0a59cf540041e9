#include "network/QtDownloader.h"

#include "platform/DownloadManager.h"

#include <QDebug>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <chrono>

namespace Vorlan::Installer
{

namespace
{

constexpr std::chrono::microseconds connectionFreshness{5'000'000};

using Entries = AdditionalDataTable::mapped_type;

Entries EntriesFor(const AdditionalDataTable& table, const std::string& language)
{
    Entries entries;
    for (const std::string& key : {std::string("all"), language})
    {
        const auto found = table.find(key);
        if (found != table.end())
            entries.insert(entries.end(), found->second.begin(), found->second.end());
    }
    return entries;
}

// An existing folder takes the file under its own name; anything else is the file's new path.
void MoveTo(const QString& destination, const QString& file)
{
    const QString target = QFileInfo(destination).isDir()
                               ? destination + QDir::separator() + QFileInfo(file).fileName()
                               : destination;
    if (QFile::rename(file, target))
        QDir().rmdir(QFileInfo(file).path()); // the manager's folder for this one file
    else
        qInfo() << "Failed to move file from: " << file << " to: " << target;
}

} // namespace

void QtDownloader::DownloadFiles(
    const AdditionalDataTable& table, const std::string& language, double start, double range)
{
    if (table.empty())
        return;
    Util::DownloadManager manager(
        App::createInternetConnectionChecker(connectionFreshness), nullptr, nullptr);
    QEventLoop loop;
    int result = 0;
    QString path;
    const Entries entries = EntriesFor(table, language);
    if (entries.empty())
        return;

    const double share = range / static_cast<double>(entries.size());
    double done = start;
    connect(&manager, &Util::DownloadManager::Progress, this,
        [&](double value) { emit Progress(done + value * share); });
    connect(&manager, &Util::DownloadManager::DownloadComplete, this,
        [&](int code, const QUrl&, const QString& file)
        {
            result = code;
            path = file;
            loop.quit();
        });
    for (const auto& [source, destination] : entries)
    {
        manager.Download(QUrl(source, QUrl::TolerantMode));
        loop.exec();
        if (result != 0)
        {
            qInfo() << "Failed to download: " << source;
            continue;
        }
        MoveTo(destination, path);
        done += share;
    }
}

} // namespace Vorlan::Installer
