#include "dialectometry/ValueClasses.h"

#include "platform/StandardColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

constexpr int Classes = 6;

/// `count` classes of one width above the last bound.
void addClasses(double end, int count, std::vector<double>& bounds)
{
    const double start = bounds.back();
    for (int i = 1; i <= count; ++i) {
        bounds.push_back(i == count ? end : start + (end - start) * i / count);
    }
}

/// From alike to unlike, around the mean.
constexpr std::array<QRgb, Classes> AroundMeanColors = {qRgb(215, 48, 39),   qRgb(252, 141, 89),
                                                        qRgb(254, 224, 144), qRgb(224, 243, 248),
                                                        qRgb(145, 191, 219), qRgb(69, 117, 180)};
/// From alike to unlike, the lighter the less.
constexpr std::array<QRgb, Classes> SequenceColors = {qRgb(37, 52, 148),   qRgb(44, 127, 184),
                                                      qRgb(65, 182, 196),  qRgb(127, 205, 187),
                                                      qRgb(199, 233, 180), qRgb(255, 255, 204)};

/// From dense to none.
AreaFill denseFill(int number)
{
    static constexpr std::array Patterns = {FillPattern::Solid,       FillPattern::DenseDiagonalCross,
                                            FillPattern::DenseRising, FillPattern::Rising,
                                            FillPattern::Dots,        FillPattern::Solid};
    constexpr QRgb Dark = qRgb(90, 90, 90);

    return {number == 0 ? Dark : 0, QBColor(StandardColor::Black),
            Patterns.at(static_cast<std::size_t>(number))};
}

} // namespace

int ValueClasses::operator()(double value) const
{
    if (std::isnan(value) || count() == 0) {
        return -1;
    }
    const double rounding = 1e-9 * (bounds.back() - bounds.front());
    const auto upper = std::lower_bound(bounds.begin() + 1, bounds.end() - 1, value - rounding);
    return static_cast<int>(upper - bounds.begin()) - 1;
}

QString ValueClasses::text(int number) const
{
    constexpr int MostDecimals = 6;

    // Rounding moves no bound by more than a tenth of the narrowest class.
    double narrowest = 1;
    for (std::size_t i = 1; i < bounds.size(); ++i) {
        const double width = bounds[i] - bounds[i - 1];
        narrowest = width > 0 ? std::min(narrowest, width) : narrowest;
    }
    const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(narrowest / 5))), 0, MostDecimals);
    const auto index = static_cast<std::size_t>(number);
    const QString from = QString::number(bounds[index], 'f', decimals);
    const QString to = QString::number(bounds[index + 1], 'f', decimals);
    return from == to ? from : QStringLiteral("%1 - %2").arg(from, to);
}

ValueClasses valueClasses(std::span<const double> values, ClassRule rule)
{
    std::vector<double> known;
    std::ranges::copy_if(values, std::back_inserter(known), [](double value) { return !std::isnan(value); });
    if (known.empty()) {
        return {};
    }
    const auto [least, most] = std::ranges::minmax(known);
    ValueClasses classes{{least}};
    if (least == most) {
        classes.bounds.push_back(most);
        return classes;
    }
    if (rule == ClassRule::AroundMean) {
        const double mean =
            std::accumulate(known.begin(), known.end(), 0.0) / static_cast<double>(known.size());
        addClasses(mean, Classes / 2, classes.bounds);
        addClasses(most, Classes / 2, classes.bounds);
    } else {
        addClasses(most, Classes, classes.bounds);
    }
    return classes;
}

std::vector<AreaFill> classFills(int count, ClassRule rule, AreaLook look)
{
    const auto& colors = rule == ClassRule::AroundMean ? AroundMeanColors : SequenceColors;
    std::vector<AreaFill> fills(static_cast<std::size_t>(std::clamp(count, 0, Classes)));
    for (std::size_t i = 0; i < fills.size(); ++i) {
        fills[i] = look == AreaLook::Hatched ? denseFill(static_cast<int>(i))
                                             : AreaFill{colors.at(i), 0, FillPattern::Solid};
    }
    return fills;
}
