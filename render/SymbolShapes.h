#pragma once

#include "mapdata/BaseMap.h"
#include "render/MapGeometry.h"
#include "symbols/SymbolSet.h"

/// The factor of a size code: 0 half, 1 normal, 2 one and a half, any other twice the size.
double SelectSize(int sizeCode);

/// The pen width of a line-width code, in pixels of 96 dpi: 0, 1, 2 give 1, 3, 5; any other 7.
qint16 LineWidth(int widthCode);

/// How many symbol numbers there are with the loaded polygon designs.
int symbolCount(const PolygonTable& polygons);

/// Draws points 1..count of the vertex buffer, placed about (x0, y0), as an open polyline.
void Polygon(const MapGeometry& geometry, DrawSurface& target, int count, float x0, float y0, QRgb color);

/// Draws the symbols that are named by one number: rectangle, circle and sector designs, and the
/// installation's polygon designs, each also elongated or slanted.
class SymbolShapes
{
public:
    SymbolShapes(const PolygonTable& polygons, MapGeometry& geometry, const TracedTarget& target)
        : m_polygons(polygons), m_geometry(geometry), m_target(target.DrawTarget), m_frmMap(target.frmMap)
    {}

    /// Draws symbol `hanko.HankoNo` about (x0, y0), twips. A number that no design serves leaves its trace
    /// "iSymbol=" on the map form. Raises invalid procedure call for a colour number outside 0..15.
    void DrawHanko(const HankoStyle& hanko, float x0, float y0);

private:
    /// What every design of one symbol is drawn with.
    struct Stamp
    {
        float x0;
        float y0;
        QRgb outline;
        QRgb fill;
        bool painted;
    };

    void DrawOneSymbol(const HankoStyle& hanko, const Stamp& stamp);
    void DrawOnePolygon(const HankoStyle& hanko, const Stamp& stamp);
    void DrawRectangle(int design, const Stamp& stamp, float size, float aspect);
    void DrawCircle(int design, const Stamp& stamp, float Radius, float Aspect);
    void DrawFan(int design, const Stamp& stamp, float Radius, float Aspect);
    void DrawSquare(int polygon, const Stamp& stamp, float Sqsize, int slant, float Asp);

    const PolygonTable& m_polygons;
    MapGeometry& m_geometry;
    DrawSurface& m_target;
    DrawSurface& m_frmMap;
};
