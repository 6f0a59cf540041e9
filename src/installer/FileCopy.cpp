#include "installer/FileCopy.h"

#include "archive/EntryName.h"
#include "base/ExtractSettings.h"
#include "platform/CopyFile.h"
#include "platform/Links.h"
#include "platform/Path.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFutureSynchronizer>
#include <QScopeGuard>
#include <QtConcurrent>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <vector>

namespace Vorlan
{

namespace
{

QString PlaceFile(QFile& source, QFile& destination)
{
    if (destination.exists())
    {
        if (Platform::IsSameFile(source.fileName(), destination.fileName()))
            return QString();
        if (!destination.remove())
            return QString("Failed to remove existing file from destination %1 error %2")
                .arg(destination.fileName(), destination.errorString());
    }
    if (!Platform::CopyToNewFile(source, destination.fileName()))
        return QString("Failed to copy file %1 error %2")
            .arg(source.fileName(), source.errorString());
    return QString();
}

// To wake the collecting thread for each file would take longer than to copy most of them.
constexpr std::chrono::milliseconds collectInterval{5};

// Jobs on their way to the threads that copy, and results on their way back.
class CopyQueue
{
public:
    CopyQueue(const std::vector<CopyJob>& jobsToDo, const Copier& copier, int threads)
        : jobs(jobsToDo), copy(copier), working(threads)
    {
        results.reserve(jobs.size()); // the threads must not run out of memory
    }

    // Copies until there is no job left or a copy failed.
    void Work()
    {
        const auto atTheEnd = qScopeGuard([this] { End(); });
        for (std::size_t index = next++; index < jobs.size() && !isStopped; index = next++)
        {
            Result result{index, {}, nullptr};
            try
            {
                result.status = copy(jobs[index].source, jobs[index].destination);
            }
            catch (...)
            {
                result.exception = std::current_exception();
            }
            if (result.exception || !result.status.error.isEmpty())
                isStopped = true;
            const std::lock_guard lock(mutex);
            results.push_back(std::move(result));
        }
    }

    // Hands out the results until every thread has ended.
    void Collect(const CopyCollector& collect)
    {
        std::vector<Result> finished;
        finished.reserve(jobs.size());
        for (bool isWorking = true; isWorking;)
        {
            finished.clear();
            {
                std::unique_lock lock(mutex);
                isWorking = !ended.wait_for(lock, collectInterval, [this] { return working == 0; });
                finished.swap(results);
            }
            for (const Result& result : finished)
                collect(jobs[result.index], StatusOf(result));
        }
    }

private:
    struct Result
    {
        std::size_t index;
        CopyFileOperationStatus status;
        std::exception_ptr exception; // null: the status counts
    };

    static CopyFileOperationStatus StatusOf(const Result& result)
    {
        CopyFileOperationStatus status = result.status;
        try
        {
            if (result.exception)
                std::rethrow_exception(result.exception);
        }
        catch (const std::exception& exception)
        {
            qInfo() << "Copy exception:" << exception.what();
            status.error = exception.what();
        }
        return status;
    }

    void End()
    {
        const std::lock_guard lock(mutex);
        --working;
        ended.notify_one();
    }

    const std::vector<CopyJob>& jobs;
    const Copier& copy;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> isStopped = false;
    std::mutex mutex; // guards what follows
    std::condition_variable ended;
    std::vector<Result> results;
    int working;
};

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
        status.error = PlaceFile(sourceFile, destinationFile);
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

void RunCopies(int threadCount, const std::vector<CopyJob>& jobs, const CopyCollector& collect,
    const Copier& copy)
{
    const int useful = static_cast<int>(std::min<std::size_t>(jobs.size(), threadCount));
    CopyQueue queue(jobs, copy, useful);
    QFutureSynchronizer<void> threads;
    for (int thread = 0; thread < useful; ++thread)
        threads.addFuture(QtConcurrent::run([&queue] { queue.Work(); }));
    queue.Collect(collect);
}

} // namespace Vorlan
