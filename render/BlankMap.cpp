#include "render/BlankMap.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"
#include "render/SymbolShapes.h"

#include <utility>

namespace {

/// Keeps the position of locality i in drawing units.
void placeLocality(const Localities& map, int i, MapGeometry& geometry)
{
    geometry.ScreenXY(i, 0) = geometry.toScreen(map.LocXY(i, 0));
    geometry.ScreenXY(i, 1) = geometry.toScreen(map.LocXY(i, 1));
}

/// A horizontal bar with ticks standing on it, its ends named.
void plotScaleBar(const PlaceNames& map, const MapGeometry& geometry, DrawSurface& target)
{
    constexpr float EndTick = 250;
    constexpr float InnerTick = EndTick / 3;
    constexpr float LabelRise = 350 - 50;
    constexpr float LabelGap = 50; // keeps a label clear of its tick

    const int slot = map.NKanji + 1;
    const float x0 = geometry.toScreen(map.KanjiXY(slot, 0));
    const float y0 = geometry.toScreen(map.KanjiXY(slot, 1));
    const float length = toSingle(geometry.Scale * map.ScaleLength);
    const float x1 = toSingle(x0 + length);
    const double step = divide(length, map.ScaleDivisions);

    target.Line(x0, y0, x1, y0, target.ForeColor);
    for (int i = 0; i <= map.ScaleDivisions; ++i) {
        const bool end = i == 0 || i >= map.ScaleDivisions;
        const float x = x0 + toSingle(i * step);
        target.Line(x, y0, x, y0 - (end ? EndTick : InnerTick), target.ForeColor);
    }
    target.PrintAt(x0 + LabelGap, y0 - LabelRise, QStringLiteral("0"));
    target.PrintAt(x1 + LabelGap, y0 - LabelRise, map.ScaleLabel);
}

} // namespace

void PlotLineData(const MapLines& map, MapGeometry& geometry, MapSurfaces surfaces)
{
    geometry.Scale = FindMinMax(map, surfaces.area, geometry);
    surfaces.thinLines();
    for (int i = 1; i <= map.NLine; ++i) {
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            for (int k = 0; k <= 1; ++k) {
                geometry.ScreenXY(j, k) = geometry.toScreen(map.LineXY(i, j, k) + map.LineOffset(i, k));
            }
        }
        surfaces.DrawTarget.DrawStyle = penStyle(map.LineStyle(i));
        Polygon(geometry, surfaces.DrawTarget, map.LinePoints(i), 0, 0, QBColor(map.MapLineColor(i)));
    }
    surfaces.DrawTarget.DrawStyle = PenStyle::Solid;
}

void PlotLocateData(const BaseMap& map, const MapStyle& style, MapGeometry& geometry, MapSurfaces surfaces)
{
    constexpr float DotRadius = 2;

    geometry.Scale = FindMinMax(map, surfaces.area, geometry);
    if (!style.PlotDots) {
        return; // the positions stay those of what was drawn last
    }
    DrawSurface& target = surfaces.DrawTarget;
    const auto fillStyle = std::exchange(target.FillStyle, DrawSurface::Fill::Solid);
    target.FillColor = QBColor(StandardColor::Black);
    for (int i = 1; i <= map.NLocality; ++i) {
        placeLocality(map, i, geometry);
        target.Circle(geometry.ScreenXY(i, 0), geometry.ScreenXY(i, 1), DotRadius,
                      QBColor(StandardColor::Black));
    }
    target.FillStyle = fillStyle;
}

void PlotLocateCircle(const Localities& map, MapGeometry& geometry, DrawSurface& target)
{
    constexpr float DiscRadius = 45;
    constexpr float RingRadius = 75;

    for (int i = 1; i <= map.NLocality; ++i) {
        placeLocality(map, i, geometry);
        const float x = geometry.ScreenXY(i, 0);
        const float y = geometry.ScreenXY(i, 1);
        target.FillStyle = DrawSurface::Fill::Solid;
        target.FillColor = QBColor(StandardColor::LightGreen);
        target.Circle(x, y, DiscRadius, QBColor(StandardColor::LightGreen));
        target.FillStyle = DrawSurface::Fill::Transparent;
        target.Circle(x, y, RingRadius, QBColor(StandardColor::LightRed));
    }
}

void PlotKanjiData(const PlaceNames& map, const MapGeometry& geometry, MapSurfaces surfaces)
{
    surfaces.DrawTarget.setFont(surfaces.frmMap.font());
    for (int i = 1; i <= map.NKanji; ++i) {
        surfaces.DrawTarget.PrintAt(geometry.toScreen(map.KanjiXY(i, 0)),
                                    geometry.toScreen(map.KanjiXY(i, 1)), map.KanjiText(i));
    }
    const bool hasScaleBar = map.ScaleDivisions != 0 || map.ScaleLength != 0 || !map.ScaleLabel.isEmpty();
    if (hasScaleBar) {
        plotScaleBar(map, geometry, surfaces.DrawTarget);
    }
}

void PlotDate(const QString& fileName, const QDateTime& time, MapSurfaces surfaces)
{
    DrawSurface& target = surfaces.DrawTarget;
    const int fontSize = target.FontSize;
    target.FontSize = 8;
    const float x = surfaces.area.Width - 1600 + 50;
    target.PrintAt(x, surfaces.area.Height - 400 + 50, fileName);
    target.PrintAt(x, surfaces.area.Height - 200 + 50, time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    target.FontSize = fontSize;
}

void PlotBaseMap(const BlankMapParts& parts, MapSurfaces surfaces)
{
    PlotLineData(parts.map, parts.geometry, surfaces);
    PlotLocateData(parts.map, parts.style, parts.geometry, surfaces);
    PlotKanjiData(parts.map, parts.geometry, surfaces);
    if (parts.style.WriteFileName) {
        PlotDate(parts.stampedFile, QDateTime::currentDateTime(), surfaces);
    }
}

void DrawBlankMap(const BlankMapParts& parts, MapSurfaces surfaces)
{
    surfaces.frmMap.Cls();
    PlotBaseMap(parts, surfaces);
}
