#include "dialectometry/PlotAxis.h"

#include "platform/StandardColors.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float Tick = 60;

/// 1, 2 or 5 times a power of ten.
double tickStep(const PlotAxis& axis)
{
    constexpr double MostTicks = 8;

    const double rough = (axis.most - axis.least) / MostTicks;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (step * power >= rough) {
            return step * power;
        }
    }
    return 10 * power;
}

} // namespace

std::vector<double> axisTicks(const PlotAxis& axis)
{
    constexpr double Rounding = 1e-9;

    if (!(axis.most > axis.least)) {
        return {axis.least};
    }
    const double step = tickStep(axis);
    std::vector<double> ticks;
    const double first = std::ceil(axis.least / step - Rounding);
    const auto count = static_cast<int>(std::floor(axis.most / step + Rounding) - first) + 1;
    ticks.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        ticks.push_back((first + i) * step);
    }
    return ticks;
}

QString tickText(double value, const PlotAxis& axis)
{
    const bool flat = !(axis.most > axis.least);
    const int decimals = flat ? 2 : std::max(0, -static_cast<int>(std::floor(std::log10(tickStep(axis)))));
    return QString::number(value + 0.0, 'f', decimals);
}

void drawAxisBelow(const PlotAxis& axis, float y, DrawSurface& target)
{
    const QRgb black = QBColor(StandardColor::Black);
    target.Line(axis.start, y, axis.end, y, black);
    for (const double value : axisTicks(axis)) {
        const QString text = tickText(value, axis);
        const float x = axis.at(value);
        target.Line(x, y, x, y + Tick, black);
        target.PrintAt(x - target.TextWidth(text) / 2, y + Tick, text);
    }
}

void drawAxisLeft(const PlotAxis& axis, float x, DrawSurface& target)
{
    const QRgb black = QBColor(StandardColor::Black);
    target.Line(x, axis.start, x, axis.end, black);
    for (const double value : axisTicks(axis)) {
        const QString text = tickText(value, axis);
        const float y = axis.at(value);
        target.Line(x - Tick, y, x, y, black);
        target.PrintAt(x - 2 * Tick - target.TextWidth(text), y - target.TextHeight() / 2, text);
    }
}
