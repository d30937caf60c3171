#include "dialectometry/ReferenceMap.h"

#include "dialectometry/AreaLegend.h"
#include "dialectometry/KeptStyle.h"
#include "platform/StandardColors.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// The distances that classes are made of: all but that of the reference.
std::vector<double> classedDistances(std::span<const double> distances, int reference)
{
    std::vector<double> classed;
    for (std::size_t i = 0; i < distances.size(); ++i) {
        if (static_cast<int>(i) != reference) {
            classed.push_back(distances[i]);
        }
    }
    return classed;
}

/// The fills of the classes, and behind them that of localities without a distance.
FilledCells filledCells(std::span<const double> distances, int reference, const ValueClasses& classes,
                        const ReferenceMapStyle& style)
{
    FilledCells cells{classFills(classes.count(), style.rule, style.look), {}};
    cells.fills.push_back(missingFill());
    for (std::size_t i = 0; i < distances.size(); ++i) {
        const int number = classes(distances[i]);
        cells.ofLocality.emplace_back();
        if (static_cast<int>(i) != reference) {
            cells.ofLocality.back().push_back(number < 0 ? classes.count() : number);
        }
    }
    return cells;
}

AreaLegend legendOf(const QString& title, const FilledCells& cells, const ValueClasses& classes)
{
    AreaLegend legend;
    legend.title = title;
    for (int i = 0; i <= classes.count(); ++i) {
        const auto count = std::ranges::count(cells.ofLocality, std::vector{i});
        const bool missing = i == classes.count();
        if (missing && count == 0) {
            continue;
        }
        AreaLegendRow row;
        row.fills = {cells.fills[static_cast<std::size_t>(i)]};
        row.text = withCount(missing ? QStringLiteral("no distance") : classes.text(i), count);
        legend.rows.push_back(row);
    }
    return legend;
}

/// A star of five points.
void drawStar(QPointF middle, DrawSurface& target)
{
    constexpr double Radius = 170;
    constexpr double Inner = 0.42;
    constexpr int Corners = 10;

    Ring star;
    for (int i = 0; i < Corners; ++i) {
        const double angle = std::numbers::pi * (2.0 * i / Corners - 0.5);
        star.push_back(middle +
                       QPointF(std::cos(angle), std::sin(angle)) * (i % 2 == 0 ? Radius : Radius * Inner));
    }
    const KeptStyle kept(target);
    target.FillStyle = DrawSurface::Fill::Solid;
    target.FillColor = QBColor(StandardColor::Black);
    target.DrawWidth = 2;
    target.Area({star}, QBColor(StandardColor::LightWhite));
}

} // namespace

void drawReferenceMap(const AreaMapParts& parts, const QString& title, std::span<const double> distances,
                      int reference, const ReferenceMapStyle& style, MapSurfaces surfaces)
{
    const ValueClasses classes = valueClasses(classedDistances(distances, reference), style.rule);
    const FilledCells cells = filledCells(distances, reference, classes, style);
    drawFilledMap(parts, cells, surfaces);
    if (style.look == AreaLook::Hatched) {
        drawFillBorders(parts, cells, surfaces.DrawTarget);
    }
    const BaseMap& map = parts.base.map;
    if (reference >= 0 && reference < map.NLocality) {
        drawStar({parts.base.geometry.toScreen(map.LocXY(reference + 1, 0)),
                  parts.base.geometry.toScreen(map.LocXY(reference + 1, 1))},
                 surfaces.DrawTarget);
    }
    drawAreaLegend(parts, legendOf(title, cells, classes), surfaces);
}
