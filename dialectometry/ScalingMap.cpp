#include "dialectometry/ScalingMap.h"

#include "dialectometry/AreaLegend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

using Place = std::array<double, Scaling::Dimensions>;

Place placeOf(const std::vector<double>& place)
{
    Place result{};
    std::copy_n(place.begin(), std::min(place.size(), result.size()), result.begin());
    return result;
}

/// A place in the range of a dimension as the strength of a colour.
int strength(double place, double least, double most)
{
    constexpr int Least = 40; // texts can be read on the darkest colour
    constexpr int Range = 255 - Least;
    const double part = most > least ? (place - least) / (most - least) : 0.5;
    return Least + static_cast<int>(std::lround(part * Range));
}

AreaLegend legendOf(const QString& title, const Scaling& scaling, bool anyMissing)
{
    constexpr std::array<QRgb, Scaling::Dimensions> Colors = {qRgb(255, 0, 0), qRgb(0, 255, 0),
                                                              qRgb(0, 0, 255)};
    static const std::array Texts = {QStringLiteral("red: dimension 1, %1 % of the variance"),
                                     QStringLiteral("green: dimension 2, both %1 %"),
                                     QStringLiteral("blue: dimension 3, all three %1 %")};
    AreaLegend legend;
    legend.title = title;
    for (std::size_t i = 0; i < Colors.size(); ++i) {
        AreaLegendRow row;
        row.fills = {{Colors.at(i), 0, FillPattern::Solid}};
        row.text = Texts.at(i).arg(std::lround(100 * scaling.variance.at(i)));
        legend.rows.push_back(row);
    }
    if (anyMissing) {
        AreaLegendRow row;
        row.fills = {missingFill()};
        row.text = QStringLiteral("left out");
        legend.rows.push_back(row);
    }
    return legend;
}

} // namespace

std::vector<QRgb> scalingColors(const Scaling& scaling)
{
    Place least;
    Place most;
    least.fill(std::numeric_limits<double>::max());
    most.fill(std::numeric_limits<double>::lowest());
    for (const std::vector<double>& place : scaling.places) {
        for (std::size_t i = 0; i < least.size() && !place.empty(); ++i) {
            least.at(i) = std::min(least.at(i), placeOf(place).at(i));
            most.at(i) = std::max(most.at(i), placeOf(place).at(i));
        }
    }
    std::vector<QRgb> colors;
    for (const std::vector<double>& place : scaling.places) {
        const Place at = placeOf(place);
        colors.push_back(place.empty()
                             ? 0
                             : qRgb(strength(at[0], least[0], most[0]), strength(at[1], least[1], most[1]),
                                    strength(at[2], least[2], most[2])));
    }
    return colors;
}

void drawScalingMap(const AreaMapParts& parts, const QString& title, const Scaling& scaling,
                    MapSurfaces surfaces)
{
    FilledCells cells;
    bool anyMissing = false;
    for (const QRgb color : scalingColors(scaling)) {
        anyMissing = anyMissing || color == 0;
        cells.ofLocality.push_back({static_cast<int>(cells.fills.size())});
        cells.fills.push_back(color == 0 ? missingFill() : AreaFill{color, 0, FillPattern::Solid});
    }
    drawFilledMap(parts, cells, surfaces);
    drawAreaLegend(parts, legendOf(title, scaling, anyMissing), surfaces);
}
