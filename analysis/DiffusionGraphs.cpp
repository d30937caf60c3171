#include "analysis/DiffusionGraphs.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"
#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/PhoneticText.h"
#include "render/SymbolShapes.h"

namespace {

constexpr float Margin = MapGeometry::Margin;

void requireWordform(const CumulativeTable& table, int k)
{
    if (k < 1 || k > table.NumWordforms) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The table has no word form %1.").arg(k));
    }
}

/// `size` times the share of the accumulated items in which the word form was counted.
float shareOf(const CumulativeTable& table, double size, int count)
{
    return toSingle(divide(size * count, table.NumItemsAccumulated));
}

/// Calls `draw` with the position of each locality and its count of word form k.
template <typename Draw>
void atEachLocality(const CountMapParts& parts, int k, Draw draw)
{
    const BaseMap& map = parts.base.map;
    MapGeometry& geometry = parts.base.geometry;
    for (int j = 1; j <= map.NLocality; ++j) {
        const float x = geometry.toScreen(map.LocXY(j, 0));
        const float y = geometry.toScreen(map.LocXY(j, 1));
        geometry.ScreenXY(j, 0) = x;
        geometry.ScreenXY(j, 1) = y;
        draw(x, y, parts.counts.Counts(k, j));
    }
}

/// Fill and outline of word form k.
QRgb useColors(const CumulativeData& data, int k, DrawSurface& target)
{
    try {
        target.FillStyle = DrawSurface::Fill::Solid;
        target.FillColor = QBColor(data.WordformPaintColor(k));
        return QBColor(data.WordformSymbolColor(k));
    } catch (const RunTimeError& error) {
        throw error.at({data.TotalFilePath})
            .during(QStringLiteral("Word form %1 (%2).").arg(k).arg(data.WordformName(k)));
    }
}

/// Printed once on a map, with its first graph.
void printItems(const CumulativeTable& table, float x, int row, MapSurfaces surfaces)
{
    if (row > 1) {
        return;
    }
    surfaces.DrawTarget.PrintAt(x, surfaces.area.Height - 1000 + 50,
                                QStringLiteral("No. of Items =%1").arg(table.NumItemsAccumulated));
}

void plotBarLegend(const CountMapParts& parts, int k, int row, MapSurfaces surfaces)
{
    constexpr float TextIndent = 200;
    constexpr float FirstRow = 600;
    constexpr float RowStep = 400;

    const CumulativeData& counts = parts.counts;
    DrawSurface& target = surfaces.DrawTarget;
    ClsHanrei(parts.base, target, row == SingleGraph ? counts.WordformName(k) : counts.MapCaption);
    const QPointF origin = captionOrigin(parts.base);
    const float cx = static_cast<float>(origin.x()) + Margin;
    const float cy = static_cast<float>(origin.y()) + Margin;
    if (row == SingleGraph) {
        target.PrintAt(cx + TextIndent, cy, counts.WordformName(k));
    } else {
        const float top = cy + FirstRow + RowStep * static_cast<float>(row - 1);
        target.PrintAt(cx, cy, counts.MapCaption);
        target.PrintAt(cx + TextIndent, top, counts.WordformName(k));
        const QRgb outline = useColors(counts, k, target);
        target.FilledBox(cx, top + RowStep / 2, cx + 50, top + RowStep / 2 - 200, outline);
    }
    printItems(counts, cx, row, surfaces);
}

/// Circles of a quarter, a half, three quarters and all of the items, named in per cent.
void plotShareScale(float x, float y, DrawSurface& target)
{
    constexpr float RowStep = 300;

    target.FillStyle = DrawSurface::Fill::Transparent;
    for (int quarter = 1; quarter <= 4; ++quarter) {
        const float top = y + RowStep * static_cast<float>(quarter - 1);
        target.Circle(x + 100, top + 120, 25 * static_cast<float>(quarter), target.ForeColor);
        target.PrintAt(x + 300, top, QStringLiteral("%1 %").arg(25 * quarter));
    }
}

void plotCircleLegend(const CountMapParts& parts, int k, int row, MapSurfaces surfaces)
{
    constexpr float TextIndent = 300;
    constexpr float FirstRow = 800;
    constexpr float RowStep = 300;

    const CumulativeData& counts = parts.counts;
    DrawSurface& target = surfaces.DrawTarget;
    ClsHanrei(parts.base, target, counts.MapCaption);
    const QPointF origin = captionOrigin(parts.base);
    const float cx = static_cast<float>(origin.x()) + Margin;
    const float cy = static_cast<float>(origin.y()) + Margin;
    if (row != SingleGraph) {
        target.PrintAt(cx, cy, counts.MapCaption);
    }
    const int place = row == SingleGraph ? 1 : row;
    const float top = cy + FirstRow + RowStep * static_cast<float>(place - 1);
    target.Circle(cx + 100, top + 120, 100, useColors(counts, k, target));
    target.PrintAt(cx + TextIndent, top, counts.WordformName(k));
    const int rows = row == SingleGraph ? 1 : counts.NumWordforms;
    if (row <= 1) {
        plotShareScale(cx, cy + FirstRow + RowStep * (static_cast<float>(rows) + 0.5F), target);
    }
    printItems(counts, cx, row, surfaces);
}

void drawGraph(const CountMapParts& parts, DiffusionGraph graph, int k, int row, MapSurfaces surfaces)
{
    switch (graph) {
    case DiffusionGraph::Bar:
        DrawBarGraph(parts, k, row, surfaces);
        break;
    case DiffusionGraph::Circle:
        DrawCircleGraph(parts, k, row, surfaces);
        break;
    case DiffusionGraph::Symbol:
        DrawHankoMap(parts, k, row, surfaces);
        break;
    }
}

} // namespace

void DrawBarGraph(const CountMapParts& parts, int k, int row, MapSurfaces surfaces)
{
    constexpr float BarWidth = 50;
    constexpr double BarHeight = 200;

    requireWordform(parts.counts, k);
    divide(1, parts.counts.NumItemsAccumulated); // also where no locality has a count
    DrawSurface& target = surfaces.DrawTarget;
    const QRgb outline = useColors(parts.counts, k, target);
    atEachLocality(parts, k, [&](float x, float y, int count) {
        if (count >= 1) {
            target.FilledBox(x, y, x + BarWidth, y - shareOf(parts.counts, BarHeight, count), outline);
        }
    });
    plotBarLegend(parts, k, row, surfaces);
}

void DrawCircleGraph(const CountMapParts& parts, int k, int row, MapSurfaces surfaces)
{
    constexpr double FullRadius = 100;

    requireWordform(parts.counts, k);
    DrawSurface& target = surfaces.DrawTarget;
    const QRgb outline = useColors(parts.counts, k, target);
    atEachLocality(parts, k, [&](float x, float y, int count) {
        target.Circle(x, y, shareOf(parts.counts, FullRadius, count), outline);
    });
    plotCircleLegend(parts, k, row, surfaces);
}

void DrawHankoMap(const CountMapParts& parts, int k, int row, MapSurfaces surfaces)
{
    requireWordform(parts.counts, k);
    SymbolShapes shapes(parts.base.map, parts.base.geometry, surfaces);
    const HankoStyle& hanko = parts.symbols.DiffusionHanko(k);
    atEachLocality(parts, k, [&](float x, float y, int count) {
        if (count >= parts.symbols.MinimumPoints(k)) {
            shapes.DrawHanko(hanko, x, y);
        }
    });
    surfaces.thinLines();
    ClsHanrei(parts.base, surfaces.DrawTarget, parts.counts.MapCaption);
    if (row == SingleGraph) {
        return;
    }
    const QPointF origin = captionOrigin(parts.base);
    const auto x = static_cast<float>(origin.x());
    const float y = static_cast<float>(origin.y()) + 600 + 400 * static_cast<float>(row - 1);
    PhoneticText(parts.text, surfaces).PlotChar(x + 200, y, parts.symbols.DiffusionCaption(k));
    shapes.DrawHanko(hanko, x, y + 80);
    surfaces.thinLines();
}

void drawSingleGraph(const CountMapParts& parts, DiffusionGraph graph, int& currentWordform,
                     MapSurfaces surfaces)
{
    DrawBlankMap(parts.base, surfaces);
    drawGraph(parts, graph, currentWordform, SingleGraph, surfaces);
    ++currentWordform;
    if (currentWordform > parts.counts.NumWordforms) {
        currentWordform = 1;
    }
}

void drawLayeredGraph(const CountMapParts& parts, DiffusionGraph graph, MapSurfaces surfaces)
{
    DrawBlankMap(parts.base, surfaces);
    for (int k = 1; k <= parts.counts.NumWordforms; ++k) {
        drawGraph(parts, graph, k, k, surfaces);
    }
}
