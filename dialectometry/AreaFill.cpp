#include "dialectometry/AreaFill.h"

#include "dialectometry/CellLines.h"
#include "dialectometry/KeptStyle.h"
#include "dialectometry/Stripes.h"
#include "platform/StandardColors.h"
#include "render/BlankMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace {

/// Paints with one fill. An outline of the ground's own colour hides the seams between areas.
void paintFill(const Rings& rings, const AreaFill& fill, DrawSurface& target)
{
    target.DrawWidth = 1;
    target.FillStyle = DrawSurface::Fill::Solid;
    if (fill.ground != 0) {
        target.DrawStyle = PenStyle::Solid;
        target.FillColor = fill.ground;
        target.Area(rings, fill.ground);
    }
    if (fill.pattern != FillPattern::Solid) {
        target.DrawStyle = PenStyle::None;
        target.FillColor = fill.ink;
        target.Area(rings, fill.ink, fill.pattern);
    }
}

/// The fills of a cell: those of all its localities.
std::vector<int> fillsOf(const std::vector<int>& localities, const FilledCells& cells)
{
    std::vector<int> fills;
    for (const int locality : localities) {
        const auto index = static_cast<std::size_t>(locality);
        if (index < cells.ofLocality.size()) {
            const std::vector<int>& own = cells.ofLocality[index];
            fills.insert(fills.end(), own.begin(), own.end());
        }
    }
    std::sort(fills.begin(), fills.end());
    fills.erase(std::unique(fills.begin(), fills.end()), fills.end());
    return fills;
}

void toScreen(Rings& rings, const MapGeometry& geometry)
{
    for (Ring& ring : rings) {
        for (QPointF& point : ring) {
            point = {geometry.toScreen(static_cast<float>(point.x())),
                     geometry.toScreen(static_cast<float>(point.y()))};
        }
    }
}

/// The cells that are filled alike.
struct CellKinds
{
    /// The number (from 0) of each kind of filling by its fills.
    std::map<std::vector<int>, int> kinds;
    /// The number of each cell; -1 of an empty one.
    std::vector<int> ofCell;
};

CellKinds kindsOf(const LocalityCells& cells, const FilledCells& filled)
{
    CellKinds result;
    for (const std::vector<int>& localities : cells.localities) {
        const std::vector<int> fills = fillsOf(localities, filled);
        const auto next = static_cast<int>(result.kinds.size());
        result.ofCell.push_back(fills.empty() ? -1 : result.kinds.try_emplace(fills, next).first->second);
    }
    return result;
}

void paintCells(const AreaMapParts& parts, const FilledCells& cells, DrawSurface& target)
{
    const auto [kinds, kindOfCell] = kindsOf(parts.cells, cells);
    std::vector<Rings> areas = joinedCells(parts.cells, kindOfCell, static_cast<int>(kinds.size()));
    for (const auto& [numbers, kind] : kinds) {
        std::vector<AreaFill> fills;
        for (const int number : numbers) {
            fills.push_back(cells.fills[static_cast<std::size_t>(number)]);
        }
        Rings& rings = areas[static_cast<std::size_t>(kind)];
        toScreen(rings, parts.base.geometry);
        paintArea(rings, fills, target);
    }
}

} // namespace

AreaFill missingFill()
{
    return {0, QBColor(StandardColor::Gray), FillPattern::Falling};
}

AreaFill hatchedFill(int number)
{
    static constexpr std::array Patterns = {FillPattern::Rising,
                                            FillPattern::DenseDots,
                                            FillPattern::Horizontal,
                                            FillPattern::DenseFalling,
                                            FillPattern::Cross,
                                            FillPattern::DenseVertical,
                                            FillPattern::Dots,
                                            FillPattern::DiagonalCross,
                                            FillPattern::DenseHorizontal,
                                            FillPattern::DenseCross,
                                            FillPattern::Vertical,
                                            FillPattern::DenseRising,
                                            FillPattern::Falling,
                                            FillPattern::DenseDiagonalCross};
    constexpr QRgb LightGrey = qRgb(217, 217, 217);

    const auto index = static_cast<std::size_t>(std::max(number, 0));
    const bool again = index / Patterns.size() % 2 == 1;
    return {again ? LightGrey : 0, QBColor(StandardColor::Black), Patterns.at(index % Patterns.size())};
}

QRgb tint(QRgb color, double white)
{
    const auto part = [white](int value) {
        return static_cast<int>(std::lround(value + (255 - value) * white));
    };
    return qRgb(part(qRed(color)), part(qGreen(color)), part(qBlue(color)));
}

void drawFillBorders(const AreaMapParts& parts, const FilledCells& cells, DrawSurface& target)
{
    static const std::array Thin = {LinePen{qRgb(60, 60, 60), 1, PenStyle::Solid}};

    const std::vector<int> between = bordersBetween(parts.cells, kindsOf(parts.cells, cells).ofCell);
    drawCellLines(cellLines(parts.cells, between, parts.base.geometry), Thin, target);
}

double markWidth(const AreaMapParts& parts, double wanted)
{
    constexpr double Share = 0.45;

    return std::min(wanted, std::max(Share * parts.cells.spacing * parts.base.geometry.Scale, TwipsPerPixel));
}

std::vector<LinePen> fittingPens(std::span<const LinePen> pens, const AreaMapParts& parts)
{
    std::vector<LinePen> fitting(pens.begin(), pens.end());
    int widest = 1;
    for (const LinePen& pen : pens) {
        widest = std::max(widest, pen.width);
    }
    const double part = markWidth(parts, widest * TwipsPerPixel) / (widest * TwipsPerPixel);
    for (LinePen& pen : fitting) {
        pen.width = std::max(1, static_cast<int>(std::lround(pen.width * part)));
    }
    return fitting;
}

void paintArea(const Rings& rings, std::span<const AreaFill> fills, DrawSurface& target)
{
    const KeptStyle kept(target);
    if (fills.size() == 1) {
        paintFill(rings, fills.front(), target);
        return;
    }
    for (std::size_t i = 0; i < fills.size(); ++i) {
        paintFill(stripes(rings, i, fills.size()), fills[i], target);
    }
}

void beginMap(const AreaMapParts& parts, MapSurfaces surfaces)
{
    surfaces.frmMap.Cls();
    parts.base.geometry.Scale = FindMinMax(parts.base.map, surfaces.area, parts.base.geometry);
}

void drawCells(const AreaMapParts& parts, const FilledCells& cells, MapSurfaces surfaces)
{
    beginMap(parts, surfaces);
    paintCells(parts, cells, surfaces.DrawTarget);
}

void drawFilledMap(const AreaMapParts& parts, const FilledCells& cells, MapSurfaces surfaces)
{
    drawCells(parts, cells, surfaces);
    PlotBaseMap(parts.base, surfaces);
}
