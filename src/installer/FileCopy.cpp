#include "installer/FileCopy.h"

#include "archive/EntryName.h"
#include "installer/ExtractSettings.h"
#include "platform/Path.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtConcurrent>

#include <exception>
#include <list>
#include <thread>

namespace Vorlan
{

namespace
{

bool IsSameFile(const QString& source, const QString& destination)
{
    return QFileInfo(source).canonicalFilePath() == QFileInfo(destination).canonicalFilePath();
}

QString ReplaceFile(QFile& source, QFile& destination)
{
    if (destination.exists() && !destination.remove())
        return QString("Failed to remove existing file from destination %1 error %2")
            .arg(destination.fileName(), destination.errorString());
    if (!source.copy(destination.fileName()))
        return QString("Failed to copy file %1 error %2")
            .arg(source.fileName(), source.errorString());
    return QString();
}

struct RunningCopy
{
    CopyJob job;
    QFuture<CopyFileOperationStatus> future;
};

CopyFileOperationStatus TakeStatus(QFuture<CopyFileOperationStatus>& future)
{
    try
    {
        return future.result();
    }
    catch (const std::exception& exception)
    {
        qInfo() << "Copy exception:" << exception.what();
        CopyFileOperationStatus status;
        status.error = exception.what();
        return status;
    }
}

} // namespace

CopyJob CreateCopyJob(
    const ExtractSettings& selection, const std::wstring& name, const QString& folder)
{
    CopyJob job;
    job.key = EntryKey(name);
    job.valid = !name.empty() &&
                (selection.include.empty() || selection.include.count(job.key) != 0) &&
                selection.exclude.count(job.key) == 0;
    const auto renamed = selection.rename.find(job.key);
    job.source = Platform::TextFromWide(name);
    job.destination =
        QDir::fromNativeSeparators(folder) +
        (renamed == selection.rename.end() ? job.source : Platform::TextFromWide(renamed->second));
    return job;
}

CopyFileOperationStatus CopyOneFile(const QString& source, const QString& destination)
{
    CopyFileOperationStatus status;
    try
    {
        QFile sourceFile(source);
        QFile destinationFile(destination);
        if (source.isEmpty() || destination.isEmpty() || !sourceFile.exists())
            return status;
        if (!IsSameFile(source, destination))
            status.error = ReplaceFile(sourceFile, destinationFile);
        if (!status.error.isEmpty())
            return status;
        status.size = static_cast<quint64>(sourceFile.size());
        status.skipped = false;
    }
    catch (const std::exception& exception)
    {
        status.error = QString("Failed to copy file, exception %1").arg(exception.what());
    }
    catch (...)
    {
        status.error = QStringLiteral("Failed to copy file");
    }
    return status;
}

void RunCopies(int threadCount, const std::function<CopyJob()>& nextJob,
    const std::function<bool(const CopyJob&, const CopyFileOperationStatus&)>& collect)
{
    std::list<RunningCopy> running;
    const auto launch = [&]
    {
        const CopyJob job = nextJob();
        if (job.valid)
            running.push_back({job, QtConcurrent::run(CopyOneFile, job.source, job.destination)});
    };

    for (int launched = 0; launched < threadCount; ++launched)
        launch();
    while (!running.empty())
    {
        for (auto copy = running.begin(); copy != running.end();)
        {
            if (!copy->future.isFinished())
            {
                ++copy;
                continue;
            }
            const bool mayGoOn = collect(copy->job, TakeStatus(copy->future));
            copy = running.erase(copy);
            if (mayGoOn)
                launch();
        }
        std::this_thread::yield();
    }
}

} // namespace Vorlan
