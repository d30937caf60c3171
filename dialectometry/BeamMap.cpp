#include "dialectometry/BeamMap.h"

#include "dialectometry/AreaLegend.h"
#include "dialectometry/KeptStyle.h"
#include "dialectometry/ValueClasses.h"
#include "render/BlankMap.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

/// From the most alike on; wide beams are dark.
constexpr std::array BeamPens = {
    LinePen{qRgb(0, 0, 0), 7, PenStyle::Solid},       LinePen{qRgb(50, 50, 50), 5, PenStyle::Solid},
    LinePen{qRgb(95, 95, 95), 4, PenStyle::Solid},    LinePen{qRgb(135, 135, 135), 3, PenStyle::Solid},
    LinePen{qRgb(170, 170, 170), 2, PenStyle::Solid}, LinePen{qRgb(205, 205, 205), 1, PenStyle::Solid}};

struct Beam
{
    LocalityPair ends;
    int number;
};

void drawBeam(const AreaMapParts& parts, LocalityPair ends, const LinePen& pen, DrawSurface& target)
{
    const BaseMap& map = parts.base.map;
    const MapGeometry& geometry = parts.base.geometry;
    const auto place = [&](int i) {
        return QPointF(geometry.toScreen(map.LocXY(i + 1, 0)), geometry.toScreen(map.LocXY(i + 1, 1)));
    };
    target.DrawWidth = pen.width;
    drawLine({place(ends.first), place(ends.second)}, pen.color, target);
}

AreaLegend legendOf(const QString& title, const ValueClasses& classes, const std::vector<Beam>& beams,
                    const std::vector<LinePen>& pens)
{
    AreaLegend legend;
    legend.title = title;
    for (int i = 0; i < classes.count(); ++i) {
        AreaLegendRow row;
        row.line = pens[static_cast<std::size_t>(i)];
        const auto isOfClass = [i](const Beam& beam) { return beam.number == i; };
        row.text = withCount(classes.text(i), std::ranges::count_if(beams, isOfClass));
        legend.rows.push_back(row);
    }
    return legend;
}

} // namespace

void drawBeamMap(const AreaMapParts& parts, const QString& title, const DistanceMatrix& distances,
                 MapSurfaces surfaces)
{
    std::vector<LocalityPair> pairs = neighbourPairs(parts.cells);
    std::erase_if(pairs, [&](LocalityPair pair) {
        return std::max(pair.first, pair.second) >= distances.size() ||
               !distances.has(pair.first, pair.second);
    });
    std::vector<double> values;
    std::ranges::transform(pairs, std::back_inserter(values),
                           [&](LocalityPair pair) { return distances(pair.first, pair.second); });
    const ValueClasses classes = valueClasses(values, ClassRule::EqualWidths);
    std::vector<Beam> beams;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        beams.push_back({pairs[i], classes(values[i])});
    }
    // The strongest lie on top.
    std::stable_sort(beams.begin(), beams.end(),
                     [](const Beam& a, const Beam& b) { return a.number > b.number; });
    beginMap(parts, surfaces);
    const std::vector<LinePen> pens = fittingPens(BeamPens, parts);
    {
        const KeptStyle kept(surfaces.DrawTarget);
        for (const Beam& beam : beams) {
            drawBeam(parts, beam.ends, pens[static_cast<std::size_t>(beam.number)], surfaces.DrawTarget);
        }
    }
    PlotBaseMap(parts.base, surfaces);
    drawAreaLegend(parts, legendOf(title, classes, beams, pens), surfaces);
}
