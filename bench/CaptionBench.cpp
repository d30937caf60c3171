#include "render/PhoneticText.h"

#include <benchmark/benchmark.h>

namespace {

/// A caption of a million characters, plain ones and escapes in no code: the time grows with its length
/// alone.
void writeLongCaption(benchmark::State& state)
{
    const QString caption = QStringLiteral("abc\\Q1x").repeated(static_cast<qsizetype>(state.range(0)));
    const Folders folders;
    const MapFont font;
    const MapStyle style;
    PictureStore pictures;
    for ([[maybe_unused]] auto step : state) {
        DrawSurface surface;
        DrawSurface traces;
        PhoneticText text({folders, font, style, pictures}, {surface, traces});
        benchmark::DoNotOptimize(text.PlotChar(0, 0, caption));
    }
    state.SetComplexityN(caption.size());
}

BENCHMARK(writeLongCaption)
    ->RangeMultiplier(4)
    ->Range(10000, 160000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

} // namespace
