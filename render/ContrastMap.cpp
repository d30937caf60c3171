#include "render/ContrastMap.h"

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
    target.FillStyle = 0;
    target.FillColor = QBColor(contrast.ContrastPaintColor(side));
    target.Circle(x, y, radius, QBColor(contrast.ContrastSymbolColor(side)));
}

float radiusAt(const VarnModule& varn, int j)
{
    const int difference = std::abs(static_cast<int>(varn.ContrastSum(0, j)));
    try {
        const qint16 product = toInteger(static_cast<double>(difference) * varn.ContrastMaxSize);
        return toSingle(divide(product, varn.NumItemsAccumulated));
    } catch (const RunTimeError& error) {
        throw error.during(QStringLiteral("The circle of locality %1.").arg(j));
    }
}

constexpr float LabelIndent = 500;

/// Middle of the legend's circles, from its left edge: left of the labels where the largest has room there,
/// otherwise right of them.
float circleIndent(const ContrastData& contrast, DrawSurface& target)
{
    constexpr float Gap = 60;
    const auto radius = static_cast<float>(contrast.ContrastMaxSize);
    if (LabelIndent / 2 + radius + Gap <= LabelIndent) {
        return LabelIndent / 2;
    }
    return LabelIndent + target.TextWidth(QStringLiteral("-100%")) + Gap + radius;
}

void plotLegend(const VarnModule& varn, int H, DrawSurface& target)
{
    constexpr float FirstRow = 800;
    constexpr float RowStep = 400;
    constexpr float HalfLine = 120; // from the top of a label to its middle

    const float x0 = toSingle(varn.Scale * varn.HanreiX);
    const float y0 = varn.Scale * static_cast<float>(varn.HanreiY);
    target.PrintAt(x0, y0, varn.ContrastTitle);
    if (H == 0) {
        return;
    }
    const float circleX = x0 + circleIndent(varn, target);
    for (int s = -H; s <= H; ++s) {
        const float y = y0 + FirstRow + RowStep * static_cast<float>(s + H - 1);
        const double share = std::floor(divide(100.0 * s, H) + 0.5);
        target.PrintAt(x0 + LabelIndent, y, QStringLiteral("%1%").arg(share));
        const float radius = toSingle(divide(static_cast<double>(std::abs(s)) * varn.ContrastMaxSize, H));
        plotCircle(varn, s, circleX, y + HalfLine, radius, target);
    }
}

} // namespace

void DrawRankGraph(VarnModule& varn, MapSurfaces surfaces)
{
    const int H = toInteger((varn.ContrastSteps - 1) / 2);
    for (int j = 1; j <= varn.NLocality; ++j) {
        // Without the margin that the base map has.
        plotCircle(varn, varn.ContrastSum(0, j), toSingle(varn.Scale * varn.LocXY(j, 0)),
                   toSingle(varn.Scale * varn.LocXY(j, 1)), radiusAt(varn, j), surfaces.DrawTarget);
    }
    ClsHanrei(varn, surfaces.DrawTarget, varn.ContrastTitle);
    plotLegend(varn, H, surfaces.DrawTarget);
}

void drawContrastMap(VarnModule& varn, MapSurfaces surfaces)
{
    DrawBlankMap(varn, surfaces);
    DrawRankGraph(varn, surfaces);
}
