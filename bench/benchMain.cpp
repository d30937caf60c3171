#include <QGuiApplication>

#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QGuiApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
