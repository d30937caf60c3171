#include "dialectometry/Distances.h"
#include "dialectometry/Linkage.h"
#include "dialectometry/Reliability.h"
#include "dialectometry/Scaling.h"

#include <benchmark/benchmark.h>
#include <random>

namespace {

/// A survey as large as one of a country: a hundred word forms of six letters an item, of which two
/// localities in three have one.
SurveyAnswers countrySurvey()
{
    constexpr int Localities = 347;
    constexpr int Items = 166;
    constexpr int Forms = 100;
    constexpr int Length = 6;
    const QString letters = QStringLiteral("aeiouəptkbdsznmlrj");
    std::mt19937 random(1);
    SurveyAnswers survey{Localities, {}};
    for (int k = 0; k < Items; ++k) {
        ComparedItem& item = survey.items.emplace_back();
        for (int form = 0; form < Forms; ++form) {
            QString& word = item.forms.emplace_back();
            for (int i = 0; i < Length; ++i) {
                word += letters[static_cast<int>(random() % static_cast<unsigned>(letters.size()))];
            }
        }
        for (int i = 0; i < Localities; ++i) {
            const auto form = static_cast<int>(random() % Forms);
            item.answers.push_back(random() % 3 == 0 ? std::vector<int>() : std::vector<int>{form});
        }
    }
    return survey;
}

DistanceSettings settingsOf(const benchmark::State& state)
{
    return {static_cast<DistanceMeasure>(state.range(0))};
}

bool goOn(int /*done*/, int /*of*/)
{
    return true;
}

void distancesOfAll(benchmark::State& state)
{
    const SurveyAnswers survey = countrySurvey();
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(distances(survey, settingsOf(state), goOn));
    }
}

void alphaOfItems(benchmark::State& state)
{
    const SurveyComparison comparison(countrySurvey(), settingsOf(state));
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(cronbachAlpha(comparison, goOn));
    }
}

DistanceMatrix randomMatrix(int size)
{
    std::mt19937 random(1);
    DistanceMatrix matrix(size);
    for (double& distance : matrix.pairs()) {
        distance = static_cast<double>(random());
    }
    return matrix;
}

void linkageOfRandom(benchmark::State& state)
{
    const DistanceMatrix matrix = randomMatrix(static_cast<int>(state.range(1)));
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(linkage(matrix, static_cast<LinkageMethod>(state.range(0))));
    }
}

void scalingOfRandom(benchmark::State& state)
{
    const DistanceMatrix matrix = randomMatrix(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(classicalScaling(matrix));
    }
}

BENCHMARK(distancesOfAll)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(alphaOfItems)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(linkageOfRandom)
    ->ArgsProduct({benchmark::CreateDenseRange(0, 4, 1), {347, 1000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(scalingOfRandom)->Arg(347)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
