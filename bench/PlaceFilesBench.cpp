// How the placement of a product grows with the number of its files. Run by bench/many-files.
#include "installer/InstallerMediator.h"
#include "support/ArchiveWriter.h"
#include "support/MediatorAccess.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Vorlan;

namespace
{

// Small files, a hundred in a folder.
QByteArray ArchiveOf(qint64 count)
{
    std::vector<ArchiveEntry> entries;
    for (qint64 i = 0; i < count; ++i)
        entries.push_back({QString("folder%1/file%2.txt").arg(i / 100).arg(i),
            QByteArray::number(i).repeated(10)});
    return CreateArchive(entries);
}

// Argument: the number of files. Opens the archive and places its files in an empty folder.
void PlaceFiles(benchmark::State& state)
{
    QLoggingCategory::setFilterRules("*=false");
    const QString name = "setup.exe";
    const QByteArray archive = ArchiveOf(state.range(0));
    for ([[maybe_unused]] auto iteration : state)
    {
        state.PauseTiming();
        {
            const QTemporaryDir machine;
            qputenv("VORLAN_MACHINE", machine.path().toUtf8());
            QFile file(machine.filePath("test.7z"));
            if (!file.open(QIODevice::WriteOnly) || file.write(archive) != archive.size())
                return state.SkipWithError("the archive cannot be written");
            file.close();
            InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
            MediatorAccess access{mediator};
            access.Settings().installDir = machine.filePath("product/");
            state.ResumeTiming();
            access.OpenArchive(machine.filePath("test.7z"));
            access.ExtractFiles({});
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(PlaceFiles)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
