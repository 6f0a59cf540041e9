// How fast a payload is unpacked, beside 7zz. Run by bench/extract, which names the archive.
#include "archive/ArchiveExtractor.h"
#include "base/ExtractSettings.h"
#include "platform/Path.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Vorlan;

namespace
{

const QString archive = qEnvironmentVariable("VORLAN_BENCH_ARCHIVE");

// Runs an unpacking into an empty folder, which is removed without being timed.
template <typename Unpack>
void Measure(benchmark::State& state, const Unpack& unpack)
{
    if (archive.isEmpty())
        return state.SkipWithError("run bench/extract");
    for ([[maybe_unused]] auto iteration : state)
    {
        state.PauseTiming();
        auto folder = std::make_unique<QTemporaryDir>();
        state.ResumeTiming();
        unpack(folder->path() + '/');
        state.PauseTiming();
        if (QDir(folder->path()).isEmpty())
            state.SkipWithError("nothing was unpacked");
        folder.reset();
        state.ResumeTiming();
    }
}

void UnpackWithEngine(benchmark::State& state)
{
    Measure(state,
        [](const QString& folder)
        {
            ArchiveExtractor(Platform::WideFromText(archive))
                .Unpack({}, Platform::WideFromText(folder), {});
        });
}
BENCHMARK(UnpackWithEngine)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void UnpackWith7zz(benchmark::State& state)
{
    Measure(state,
        [](const QString& folder) {
            QProcess::execute("7zz", {"x", "-y", "-bso0", "-bsp0", "-o" + folder, archive});
        });
}
BENCHMARK(UnpackWith7zz)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
