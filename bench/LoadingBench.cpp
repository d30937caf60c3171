#include "bench/FullSurvey.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <fstream>
#include <string>

namespace {

/// A full item in a file of its own.
struct ItemFile
{
    ItemFile() : drive(folder.path())
    {
        QFile file(folder.filePath(QStringLiteral("full.dbs")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(fullItemText());
        }
    }

    QTemporaryDir folder;
    DriveC drive;
};

void loadAndDeriveKinds(benchmark::State& state)
{
    const ItemFile item;
    const QString path = QStringLiteral("C:\\full.dbs");
    for ([[maybe_unused]] auto step : state) {
        LinguisticData data;
        static_cast<ItemAnswers&>(data) = readSequentialFile(item.drive, path, readItem);
        SearchKindWord(data);
        SortKindWord(data);
        benchmark::DoNotOptimize(data.NKind);
    }
}

void readLinesAsText(benchmark::State& state)
{
    const ItemFile item;
    for ([[maybe_unused]] auto step : state) {
        QFile file(item.folder.filePath(QStringLiteral("full.dbs")));
        if (!file.open(QIODevice::ReadOnly)) {
            state.SkipWithError("cannot read");
            break;
        }
        QTextStream stream(&file);
        qsizetype characters = 0;
        while (!stream.atEnd()) {
            characters += stream.readLine().size();
        }
        benchmark::DoNotOptimize(characters);
    }
}

void readLinesAsBytes(benchmark::State& state)
{
    const ItemFile item;
    for ([[maybe_unused]] auto step : state) {
        std::ifstream file(item.folder.filePath(QStringLiteral("full.dbs")).toStdString());
        std::string line;
        std::size_t characters = 0;
        while (std::getline(file, line)) {
            characters += line.size();
        }
        benchmark::DoNotOptimize(characters);
    }
}

BENCHMARK(readLinesAsText)->Unit(benchmark::kMicrosecond);
BENCHMARK(readLinesAsBytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(loadAndDeriveKinds)->Unit(benchmark::kMicrosecond);

} // namespace
