#include "dialectometry/ClusterMap.h"

#include "dialectometry/AreaLegend.h"
#include "dialectometry/CellLines.h"
#include "dialectometry/GroupColors.h"
#include "platform/StandardColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace {

constexpr int ShareClasses = 4;

/// The fills of groups 0, 1, ...
FilledCells filledCells(std::span<const int> groups, AreaLook look)
{
    FilledCells cells;
    const int most = groups.empty() ? 0 : std::max(0, *std::ranges::max_element(groups));
    for (int group = 0; group <= most; ++group) {
        cells.fills.push_back(groupFill(group, look));
    }
    for (const int group : groups) {
        cells.ofLocality.push_back({std::max(group, 0)});
    }
    return cells;
}

AreaLegend legendOf(const QString& title, std::span<const int> groups, const FilledCells& cells,
                    const ClusterMapStyle& style)
{
    AreaLegend legend;
    legend.title = title;
    legend.look = style.look;
    const auto row = [&](int group, const QString& text) {
        const auto count = std::ranges::count(groups, group);
        if (count == 0) {
            return;
        }
        AreaLegendRow entry;
        entry.fills = {cells.fills[static_cast<std::size_t>(group)]};
        entry.groupSymbol = style.symbols ? group : 0;
        entry.text = withCount(text, count);
        legend.rows.push_back(entry);
    };
    for (int group = 1; group < static_cast<int>(cells.fills.size()); ++group) {
        row(group, QStringLiteral("group %1").arg(group));
    }
    row(0, QStringLiteral("left out"));
    return legend;
}

/// Group borders of one look, and those of noise the darker the higher their share.
std::vector<LinePen> sharePens()
{
    return {{qRgb(190, 190, 190), 1, PenStyle::Solid},
            {qRgb(140, 140, 140), 2, PenStyle::Solid},
            {qRgb(80, 80, 80), 3, PenStyle::Solid},
            {qRgb(0, 0, 0), 4, PenStyle::Solid}};
}

int shareClass(double share)
{
    constexpr double Never = 0.005;

    return share < Never
               ? NoLine
               : std::clamp(static_cast<int>(std::ceil(share * ShareClasses)) - 1, 0, ShareClasses - 1);
}

/// The class of each border by the share of its two neighbours.
std::vector<int> shareClasses(const LocalityCells& cells, std::span<const BorderShare> shares)
{
    std::map<LocalityPair, int> classOf;
    for (const BorderShare& share : shares) {
        classOf[std::minmax({share.neighbours.first, share.neighbours.second})] = shareClass(share.share);
    }
    const auto first = [&cells](int cell) {
        return cells.localities[static_cast<std::size_t>(cell)].front();
    };
    std::vector<int> classes;
    for (const CellBorder& border : cells.borders) {
        if (border.left == CellBorder::Outside || border.right == CellBorder::Outside) {
            classes.push_back(NoLine);
            continue;
        }
        const auto known = classOf.find(std::minmax({first(border.left), first(border.right)}));
        classes.push_back(known == classOf.end() ? NoLine : known->second);
    }
    return classes;
}

void drawBorders(const AreaMapParts& parts, const FilledCells& cells, std::span<const BorderShare> shares,
                 DrawSurface& target)
{
    if (shares.empty()) {
        drawFillBorders(parts, cells, target);
        return;
    }
    const std::vector<int> classes = shareClasses(parts.cells, shares);
    drawCellLines(cellLines(parts.cells, classes, parts.base.geometry), fittingPens(sharePens(), parts),
                  target);
}

void drawSymbols(const AreaMapParts& parts, std::span<const int> groups, AreaLook look, DrawSurface& target)
{
    constexpr double Widest = 150;

    const auto size = static_cast<float>(markWidth(parts, Widest) / 2);
    const BaseMap& map = parts.base.map;
    for (int i = 1; i <= map.NLocality && i <= static_cast<int>(groups.size()); ++i) {
        const int group = groups[static_cast<std::size_t>(i - 1)];
        if (group > 0) {
            drawGroupSymbol(group, look, parts.base.geometry.toScreen(map.LocXY(i, 0)),
                            parts.base.geometry.toScreen(map.LocXY(i, 1)), size, target);
        }
    }
}

void addShareRows(const AreaMapParts& parts, AreaLegend& legend)
{
    const std::vector<LinePen> pens = fittingPens(sharePens(), parts);
    for (int i = ShareClasses - 1; i >= 0; --i) {
        AreaLegendRow row;
        row.line = pens[static_cast<std::size_t>(i)];
        const QString percent = QStringLiteral("border in %1 - %2 % of the runs");
        row.text = percent.arg(i == 0 ? 1 : 100 * i / ShareClasses).arg(100 * (i + 1) / ShareClasses);
        legend.rows.push_back(row);
    }
}

} // namespace

void drawClusterMap(const AreaMapParts& parts, const QString& title, std::span<const int> groups,
                    std::span<const BorderShare> shares, const ClusterMapStyle& style, MapSurfaces surfaces)
{
    const FilledCells cells = filledCells(groups, style.look);
    drawFilledMap(parts, cells, surfaces);
    drawBorders(parts, cells, shares, surfaces.DrawTarget);
    if (style.symbols) {
        drawSymbols(parts, groups, style.look, surfaces.DrawTarget);
    }
    AreaLegend legend = legendOf(title, groups, cells, style);
    if (!shares.empty()) {
        addShareRows(parts, legend);
    }
    drawAreaLegend(parts, legend, surfaces);
}
