#include "render/MapGeometry.h"

#include "platform/Numbers.h"

#include <algorithm>

namespace {

/// Widens the extent by every point of the lines, offsets added; returns whether there was any point.
bool widenExtent(const MapLines& map, MapGeometry& geometry)
{
    bool anyPoint = false;
    for (int i = 1; i <= map.NLine; ++i) {
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            const float x = map.LineXY(i, j, 0) + map.LineOffset(i, 0);
            const float y = map.LineXY(i, j, 1) + map.LineOffset(i, 1);
            geometry.MinX = std::min<double>(geometry.MinX, x);
            geometry.MinY = std::min<double>(geometry.MinY, y);
            geometry.MaxX = std::max<double>(geometry.MaxX, x);
            geometry.MaxY = std::max(geometry.MaxY, y);
            anyPoint = true;
        }
    }
    return anyPoint;
}

} // namespace

float MapGeometry::raiseTooFar(float coordinate)
{
    throw RunTimeError(ErrorNumber::Overflow,
                       QStringLiteral("The map's coordinate %1 is too far out to be drawn.").arg(coordinate));
}

float FindMinMax(const MapLines& map, const FormArea& form, MapGeometry& geometry, float startMaxY)
{
    geometry.MinX = 1000000;
    geometry.MinY = 1000000;
    geometry.MaxX = -999999;
    geometry.MaxY = startMaxY;
    if (!widenExtent(map, geometry)) {
        throw RunTimeError(ErrorNumber::DivisionByZero, QStringLiteral("The map has no lines."));
    }
    if (geometry.MaxY == geometry.MinY || geometry.MaxX == geometry.MinX) {
        throw RunTimeError(ErrorNumber::DivisionByZero,
                           QStringLiteral("The lines of the map have no height or no width."));
    }
    // The place of the form counts: one further down the screen has a smaller map. The height alone sets the
    // scale, so a wide map may leave the form at the right.
    geometry.RatioY = divide(form.Height - form.Top, geometry.MaxY - geometry.MinY);
    geometry.RatioX = divide(form.Width - form.Left, geometry.MaxX - geometry.MinX);
    return toSingle(0.98 * geometry.RatioY);
}

void findStartExtent(const MapLines& map, MapGeometry& geometry)
{
    geometry.MinX = 1E+20;
    geometry.MinY = 1E+20;
    geometry.MaxX = -1E+20;
    geometry.MaxY = -1E+20F;
    widenExtent(map, geometry);
}

TextCell X0Y0(qint16 mapFontSize, bool halfWidth)
{
    const auto dx = static_cast<float>((mapFontSize + 1) * 24);
    return {halfWidth ? dx / 2 : dx, toInteger((mapFontSize + 2) * 24)};
}

void XYPosition(const DrawSurface& target, float& x, float& xmax, float dx)
{
    x += dx;
    xmax = std::max(xmax, target.CurrentX);
}

void XmaxYmax(float& x, float& y, float x0, float y0, float xlim, float ylim, float dx, float dy)
{
    x += dx;
    if (x > xlim) {
        x = x0;
        y += dy;
    }
    if (y > ylim) {
        y = y0;
    }
}
