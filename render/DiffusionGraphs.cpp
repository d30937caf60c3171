#include "render/DiffusionGraphs.h"

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
void atEachLocality(VarnModule& varn, int k, Draw draw)
{
    for (int j = 1; j <= varn.NLocality; ++j) {
        const float x = varn.toScreen(varn.LocXY(j, 0));
        const float y = varn.toScreen(varn.LocXY(j, 1));
        varn.ScreenXY(j, 0) = x;
        varn.ScreenXY(j, 1) = y;
        draw(x, y, varn.Counts(k, j));
    }
}

/// Fill and outline of word form k.
QRgb useColors(const CumulativeData& data, int k, DrawSurface& target)
{
    try {
        target.FillStyle = 0;
        target.FillColor = QBColor(data.WordformPaintColor(k));
        return QBColor(data.WordformSymbolColor(k));
    } catch (const RunTimeError& error) {
        throw error.at({data.TotalFilePath})
            .during(QStringLiteral("Word form %1 (%2).").arg(k).arg(data.WordformName(k)));
    }
}

/// Printed once on a map, with its first graph.
void printItems(const VarnModule& varn, float x, int row, MapSurfaces surfaces)
{
    if (row > 1) {
        return;
    }
    surfaces.DrawTarget.PrintAt(x, surfaces.frmMap.Height - 1000 + 50,
                                QStringLiteral("No. of Items =%1").arg(varn.NumItemsAccumulated));
}

void plotBarLegend(const VarnModule& varn, int k, int row, MapSurfaces surfaces)
{
    constexpr float TextIndent = 200;
    constexpr float FirstRow = 600;
    constexpr float RowStep = 400;

    DrawSurface& target = surfaces.DrawTarget;
    ClsHanrei(varn, target, row == 0 ? varn.WordformName(k) : varn.MapCaption);
    const QPointF origin = captionOrigin(varn);
    const float cx = static_cast<float>(origin.x()) + Margin;
    const float cy = static_cast<float>(origin.y()) + Margin;
    if (row == 0) {
        target.PrintAt(cx + TextIndent, cy, varn.WordformName(k));
    } else {
        const float top = cy + FirstRow + RowStep * static_cast<float>(row - 1);
        target.PrintAt(cx, cy, varn.MapCaption);
        target.PrintAt(cx + TextIndent, top, varn.WordformName(k));
        const QRgb outline = useColors(varn, k, target);
        target.FilledBox(cx, top + RowStep / 2, cx + 50, top + RowStep / 2 - 200, outline);
    }
    printItems(varn, cx, row, surfaces);
}

/// Circles of a quarter, a half, three quarters and all of the items, named in per cent.
void plotShareScale(float x, float y, DrawSurface& target)
{
    constexpr float RowStep = 300;

    target.FillStyle = 1;
    for (int quarter = 1; quarter <= 4; ++quarter) {
        const float top = y + RowStep * static_cast<float>(quarter - 1);
        target.Circle(x + 100, top + 120, 25 * static_cast<float>(quarter), target.ForeColor);
        target.PrintAt(x + 300, top, QStringLiteral("%1 %").arg(25 * quarter));
    }
}

void plotCircleLegend(const VarnModule& varn, int k, int row, MapSurfaces surfaces)
{
    constexpr float TextIndent = 300;
    constexpr float FirstRow = 800;
    constexpr float RowStep = 300;

    DrawSurface& target = surfaces.DrawTarget;
    ClsHanrei(varn, target, varn.MapCaption);
    const QPointF origin = captionOrigin(varn);
    const float cx = static_cast<float>(origin.x()) + Margin;
    const float cy = static_cast<float>(origin.y()) + Margin;
    if (row != 0) {
        target.PrintAt(cx, cy, varn.MapCaption);
    }
    const int place = row == 0 ? 1 : row;
    const float top = cy + FirstRow + RowStep * static_cast<float>(place - 1);
    target.Circle(cx + 100, top + 120, 100, useColors(varn, k, target));
    target.PrintAt(cx + TextIndent, top, varn.WordformName(k));
    const int rows = row == 0 ? 1 : varn.NumWordforms;
    if (row <= 1) {
        plotShareScale(cx, cy + FirstRow + RowStep * (static_cast<float>(rows) + 0.5F), target);
    }
    printItems(varn, cx, row, surfaces);
}

void drawGraph(VarnModule& varn, DiffusionGraph graph, int k, int row, MapSurfaces surfaces)
{
    switch (graph) {
    case DiffusionGraph::Bar:
        DrawBarGraph(varn, k, row, surfaces);
        break;
    case DiffusionGraph::Circle:
        DrawCircleGraph(varn, k, row, surfaces);
        break;
    case DiffusionGraph::Symbol:
        DrawHankoMap(varn, k, row, surfaces);
        break;
    }
}

} // namespace

void DrawBarGraph(VarnModule& varn, int k, int row, MapSurfaces surfaces)
{
    constexpr float BarWidth = 50;
    constexpr double BarHeight = 200;

    requireWordform(varn, k);
    divide(1, varn.NumItemsAccumulated); // also where no locality has a count
    DrawSurface& target = surfaces.DrawTarget;
    const QRgb outline = useColors(varn, k, target);
    atEachLocality(varn, k, [&](float x, float y, int count) {
        if (count >= 1) {
            target.FilledBox(x, y, x + BarWidth, y - shareOf(varn, BarHeight, count), outline);
        }
    });
    plotBarLegend(varn, k, row, surfaces);
}

void DrawCircleGraph(VarnModule& varn, int k, int row, MapSurfaces surfaces)
{
    constexpr double FullRadius = 100;

    requireWordform(varn, k);
    DrawSurface& target = surfaces.DrawTarget;
    const QRgb outline = useColors(varn, k, target);
    atEachLocality(varn, k, [&](float x, float y, int count) {
        target.Circle(x, y, shareOf(varn, FullRadius, count), outline);
    });
    plotCircleLegend(varn, k, row, surfaces);
}

void DrawHankoMap(VarnModule& varn, int k, int row, MapSurfaces surfaces)
{
    requireWordform(varn, k);
    SymbolShapes shapes(varn, varn, surfaces);
    const HankoStyle& hanko = varn.DiffusionHanko(k);
    atEachLocality(varn, k, [&](float x, float y, int count) {
        if (count >= varn.MinimumPoints(k)) {
            shapes.DrawHanko(hanko, x, y);
        }
    });
    surfaces.thinLines();
    ClsHanrei(varn, surfaces.DrawTarget, varn.MapCaption);
    if (row == 0) {
        return;
    }
    const QPointF origin = captionOrigin(varn);
    const auto x = static_cast<float>(origin.x());
    const float y = static_cast<float>(origin.y()) + 600 + 400 * static_cast<float>(row - 1);
    PhoneticText(varn, varn, varn, varn.Pictures, surfaces).PlotChar(x + 200, y, varn.DiffusionCaption(k));
    shapes.DrawHanko(hanko, x, y + 80);
    surfaces.thinLines();
}

void drawSingleGraph(VarnModule& varn, DiffusionGraph graph, MapSurfaces surfaces)
{
    DrawBlankMap(varn, surfaces);
    drawGraph(varn, graph, varn.CurrentWordform, 0, surfaces);
    ++varn.CurrentWordform;
    if (varn.CurrentWordform > varn.NumWordforms) {
        varn.CurrentWordform = 1;
    }
}

void drawLayeredGraph(VarnModule& varn, DiffusionGraph graph, MapSurfaces surfaces)
{
    DrawBlankMap(varn, surfaces);
    for (int k = 1; k <= varn.NumWordforms; ++k) {
        drawGraph(varn, graph, k, k, surfaces);
    }
}
