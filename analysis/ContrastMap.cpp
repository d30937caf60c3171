#include "analysis/ContrastMap.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"
#include "render/BlankMap.h"
#include "render/Legend.h"

#include <cmath>
#include <cstdlib>

namespace {

/// Draws a circle in the colours of the side that prevails at `difference`; side 2 where neither does.
void plotCircle(const ContrastData& contrast, int difference, float x, float y, float radius,
                DrawSurface& target)
{
    const int side = difference > 0 ? 1 : 2;
    target.FillStyle = DrawSurface::Fill::Solid;
    target.FillColor = QBColor(contrast.ContrastPaintColor(side));
    target.Circle(x, y, radius, QBColor(contrast.ContrastSymbolColor(side)));
}

float radiusAt(const CountMapParts& parts, int j)
{
    const int difference = std::abs(static_cast<int>(parts.contrast.ContrastSum(0, j)));
    try {
        // The product is of 16 bits: a difference of 400 allows a size of 81.
        const qint16 product = toInteger(static_cast<double>(difference) * parts.contrast.ContrastMaxSize);
        return toSingle(divide(product, parts.counts.NumItemsAccumulated));
    } catch (const RunTimeError& error) {
        throw error.during(
            QStringLiteral("The circle of locality %1.").arg(localityTitle(parts.base.map, j)));
    }
}

constexpr float LabelIndent = 500;

/// Middle of the legend's circles, from its left edge: left of the labels where the largest has room there,
/// otherwise right of them.
float circleIndent(const ContrastData& contrast, const DrawSurface& target)
{
    constexpr float Gap = 60;
    const auto radius = static_cast<float>(contrast.ContrastMaxSize);
    if (LabelIndent / 2 + radius + Gap <= LabelIndent) {
        return LabelIndent / 2;
    }
    return LabelIndent + target.TextWidth(QStringLiteral("-100%")) + Gap + radius;
}

void plotLegend(const CountMapParts& parts, int H, DrawSurface& target)
{
    constexpr float FirstRow = 800;
    constexpr float RowStep = 400;
    constexpr float HalfLine = 120; // from the top of a label to its middle

    const ContrastData& contrast = parts.contrast;
    const float scale = parts.base.geometry.Scale;
    const float x0 = toSingle(scale * parts.base.map.HanreiX);
    const float y0 = scale * static_cast<float>(parts.base.map.HanreiY);
    target.PrintAt(x0, y0, contrast.ContrastTitle);
    if (H == 0) {
        return;
    }
    const float circleX = x0 + circleIndent(contrast, target);
    for (int s = -H; s <= H; ++s) {
        const float y = y0 + FirstRow + RowStep * static_cast<float>(s + H - 1);
        const double share = std::floor(divide(100.0 * s, H) + 0.5);
        target.PrintAt(x0 + LabelIndent, y, QStringLiteral("%1%").arg(share));
        const float radius = toSingle(divide(static_cast<double>(std::abs(s)) * contrast.ContrastMaxSize, H));
        plotCircle(contrast, s, circleX, y + HalfLine, radius, target);
    }
}

} // namespace

void DrawRankGraph(const CountMapParts& parts, MapSurfaces surfaces)
{
    const ContrastData& contrast = parts.contrast;
    const BaseMap& map = parts.base.map;
    const float scale = parts.base.geometry.Scale;
    const int H = toInteger((contrast.ContrastSteps - 1) / 2); // rows on each side of zero; 2.5 gives 2
    for (int j = 1; j <= map.NLocality; ++j) {
        // Without the margin that the base map has.
        plotCircle(contrast, contrast.ContrastSum(0, j), toSingle(scale * map.LocXY(j, 0)),
                   toSingle(scale * map.LocXY(j, 1)), radiusAt(parts, j), surfaces.DrawTarget);
    }
    ClsHanrei(parts.base, surfaces.DrawTarget, contrast.ContrastTitle);
    plotLegend(parts, H, surfaces.DrawTarget);
}

void drawContrastMap(const CountMapParts& parts, MapSurfaces surfaces)
{
    DrawBlankMap(parts.base, surfaces);
    DrawRankGraph(parts, surfaces);
}
