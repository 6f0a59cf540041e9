// How fast a large file is downloaded, beside the curl command. Run by bench/download, which starts
// the server and names the file's address.
#include "platform/DownloadManager.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Vorlan;

namespace
{

const QString address = qEnvironmentVariable("VORLAN_BENCH_URL");

// Runs a download that gives back the path of its file, which is removed without being timed.
template <typename Download>
void Measure(benchmark::State& state, const Download& download)
{
    if (address.isEmpty())
        return state.SkipWithError("run bench/download");
    qint64 bytes = 0;
    for ([[maybe_unused]] auto iteration : state)
    {
        const QString path = download();
        state.PauseTiming();
        const qint64 size = QFileInfo(path).size();
        if (size == 0 || !QFile::remove(path))
            state.SkipWithError("the download failed");
        bytes += size;
        state.ResumeTiming();
    }
    state.SetBytesProcessed(bytes);
}

void DownloadWithManager(benchmark::State& state)
{
    Util::DownloadManager manager(nullptr, nullptr);
    Measure(state,
        [&]
        {
            QEventLoop loop;
            QString path;
            QObject::connect(&manager, &Util::DownloadManager::DownloadComplete, &loop,
                [&](int, const QUrl&, const QString& file) { path = file, loop.quit(); });
            manager.Download(QUrl(address));
            loop.exec();
            return path;
        });
}
BENCHMARK(DownloadWithManager)->Iterations(5)->UseRealTime()->Unit(benchmark::kMillisecond);

void DownloadWithCurlCommand(benchmark::State& state)
{
    const QTemporaryDir folder;
    QString path = folder.filePath("file");
    Measure(state,
        [&]
        {
            QProcess::execute("curl", {"--silent", "--noproxy", "*", "--output", path, address});
            return path;
        });
}
BENCHMARK(DownloadWithCurlCommand)->Iterations(5)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
