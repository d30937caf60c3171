#include "analysis/Accumulation.h"
#include "analysis/Statistics.h"
#include "bench/FullSurvey.h"
#include "lingdata/LinguisticFile.h"
#include "platform/SequentialFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

namespace {

constexpr int Items = 400;
constexpr int Localities = 1000;

/// Four hundred full items, each in a file of its own.
struct ItemFolder
{
    ItemFolder() : drive(folder.path())
    {
        for (int i = 0; i < Items; ++i) {
            QFile file(folder.filePath(name(i)));
            if (file.open(QIODevice::WriteOnly)) {
                file.write(fullItemText().replace("word", "word" + QByteArray::number(i)));
            }
        }
    }

    static QString name(int item) { return QStringLiteral("item%1.dbs").arg(item); }

    QTemporaryDir folder;
    DriveC drive;
};

/// Ten word forms of ten identifying strings each.
CumulativeData tenWordforms()
{
    CumulativeData data;
    data.NumWordforms = 10;
    for (int k = 1; k <= 10; ++k) {
        data.NumSpecifyChars(k) = 10;
        for (int c = 1; c <= 10; ++c) {
            data.SpecifyChars(k, c) = QStringLiteral("form %1").arg(k * 17 + c);
        }
    }
    return data;
}

void accumulateItems(benchmark::State& state)
{
    const ItemFolder files;
    for ([[maybe_unused]] auto step : state) {
        CumulativeData data = tenWordforms();
        for (int i = 0; i < Items; ++i) {
            accumulateItem(
                readSequentialFile(files.drive, QStringLiteral("C:\\") + ItemFolder::name(i), readItem),
                Localities, data);
        }
        benchmark::DoNotOptimize(data.Counts(1, 1));
    }
}

void readItemLines(benchmark::State& state)
{
    const ItemFolder files;
    for ([[maybe_unused]] auto step : state) {
        qsizetype characters = 0;
        for (int i = 0; i < Items; ++i) {
            QFile file(files.folder.filePath(ItemFolder::name(i)));
            if (!file.open(QIODevice::ReadOnly)) {
                state.SkipWithError("cannot read");
                return;
            }
            QTextStream stream(&file);
            while (!stream.atEnd()) {
                characters += stream.readLine().size();
            }
        }
        benchmark::DoNotOptimize(characters);
    }
}

void statisticsOfTenWordforms(benchmark::State& state)
{
    CumulativeTable table;
    table.NumWordforms = 10;
    table.NumItemsAccumulated = Items;
    for (int k = 1; k <= 10; ++k) {
        for (int j = 1; j <= Localities; ++j) {
            table.Counts(k, j) = static_cast<qint16>((j * k) % 60);
        }
    }
    Statistics statistics;
    for ([[maybe_unused]] auto step : state) {
        Stats(table, Localities, statistics);
        benchmark::DoNotOptimize(statistics.Average(10));
    }
}

BENCHMARK(readItemLines)->Unit(benchmark::kMillisecond);
BENCHMARK(accumulateItems)->Unit(benchmark::kMillisecond);
BENCHMARK(statisticsOfTenWordforms)->Unit(benchmark::kMillisecond);

} // namespace
