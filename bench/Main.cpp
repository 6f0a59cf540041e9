#include <QCoreApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    for (const char* name : {"VORLAN_CONFIG_URL", "VORLAN_WEBUID_URL"})
        qputenv(name, "off"); // nobody is asked over the network
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
