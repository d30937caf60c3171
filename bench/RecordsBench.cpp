#include "atlas/RecordCounts.h"
#include "atlas/RecordEdits.h"

#include <benchmark/benchmark.h>

namespace {

/// Five thousand different word forms of a thousand localities.
std::vector<AnsweredWord> manyWords()
{
    constexpr int Words = 5000;
    std::vector<AnsweredWord> words;
    words.reserve(Words);
    for (int n = 0; n < Words; ++n) {
        words.push_back(
            {QStringLiteral("form%1").arg(n * 7919 % 10007, 8, 10, QLatin1Char('a')), {n / 5 + 1}});
    }
    return words;
}

/// A key that is typed in one of a hundred kinds, which all mark some word forms.
void countWhileTyping(benchmark::State& state)
{
    RecordCounter counter(manyWords());
    SymbolRecords records;
    for (int k = 1; k <= MostRecords; ++k) {
        records.HankoWord(k) = QString::number(k);
    }
    records.NHanrei = MostRecords;
    counter.count(records, false);
    int key = 0;
    for ([[maybe_unused]] auto step : state) {
        records = withKind(records, 50, QString::number(++key % 1000));
        benchmark::DoNotOptimize(counter.count(records, false));
    }
}

BENCHMARK(countWhileTyping)->Unit(benchmark::kMillisecond);

} // namespace
