// How fast files that lie beside the setup are copied: in parallel, one after another, and by cp.
// Run by bench/copy, which names the folders.
#include "base/ExtractSettings.h"
#include "installer/FileCopy.h"
#include "platform/Path.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <thread>

using namespace Vorlan;

namespace
{

const QString sourceFolder = qEnvironmentVariable("VORLAN_BENCH_COPY");

std::vector<std::wstring> NamesBelow(const QString& folder)
{
    std::vector<std::wstring> names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.push_back(Platform::WideFromText(QDir(folder).relativeFilePath(files.next())));
    return names;
}

// Runs a copy of the current folder into a folder that has its subfolders, as the engine's copies
// find them.
template <typename Copy>
void Measure(benchmark::State& state, const Copy& copy)
{
    if (sourceFolder.isEmpty() || !QDir::setCurrent(sourceFolder))
        return state.SkipWithError("run bench/copy");
    const std::vector<std::wstring> names = NamesBelow(sourceFolder);
    for ([[maybe_unused]] auto iteration : state)
    {
        state.PauseTiming();
        auto folder = std::make_unique<QTemporaryDir>();
        for (const std::wstring& name : names)
            QDir(folder->path()).mkpath(QFileInfo(Platform::TextFromWide(name)).path());
        state.ResumeTiming();
        copy(names, folder->path() + '/');
        state.PauseTiming();
        if (NamesBelow(folder->path()).size() != names.size())
            state.SkipWithError("not every file was copied");
        folder.reset();
        state.ResumeTiming();
    }
}

void CopyOneAfterAnother(benchmark::State& state)
{
    Measure(state,
        [](const std::vector<std::wstring>& names, const QString& folder)
        {
            for (const std::wstring& name : names)
            {
                const CopyJob job = CreateCopyJob({}, name, folder);
                CopyOneFile(job.source, job.destination);
            }
        });
}
BENCHMARK(CopyOneAfterAnother)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void CopyInParallel(benchmark::State& state)
{
    Measure(state,
        [](const std::vector<std::wstring>& names, const QString& folder)
        {
            std::vector<CopyJob> jobs;
            jobs.reserve(names.size());
            for (const std::wstring& name : names)
                jobs.push_back(CreateCopyJob({}, name, folder));
            RunCopies(static_cast<int>(std::thread::hardware_concurrency()), jobs,
                [](const CopyJob&, const CopyFileOperationStatus&) {});
        });
}
BENCHMARK(CopyInParallel)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void CopyWithCp(benchmark::State& state)
{
    Measure(state,
        [](const std::vector<std::wstring>&, const QString& folder) {
            QProcess::execute("cp", {"--recursive", ".", folder});
        });
}
BENCHMARK(CopyWithCp)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
