// How long the registration of the product with the system takes, on a machine of its own.
#include "installer/InstallerMediator.h"
#include "support/MediatorAccess.h"

#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Vorlan;

namespace
{

// Arguments: whether each of the two context-menu verbs is chosen.
void RegisterProduct(benchmark::State& state)
{
    QLoggingCategory::setFilterRules("*=false");
    QDir::setCurrent(QCoreApplication::applicationDirPath()); // translations of the labels
    const QString name = "setup.exe";
    for ([[maybe_unused]] auto iteration : state)
    {
        state.PauseTiming();
        {
            const QTemporaryDir machine;
            qputenv("VORLAN_MACHINE", machine.path().toUtf8());
            InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
            MediatorAccess access{mediator};
            access.Settings().contextMenuConvert = state.range(0) != 0 ? 2 : 0;
            access.Settings().contextMenuOpenWith = state.range(1) != 0 ? 2 : 0;
            state.ResumeTiming();
            access.AddRegistryInfo();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(RegisterProduct)
    ->ArgNames({"convert", "open"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
