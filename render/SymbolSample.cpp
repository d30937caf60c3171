#include "render/SymbolSample.h"

#include "render/SymbolShapes.h"
#include "symbols/SymbolEditor.h"

bool canDraw(const HankoStyle& hanko, const PolygonTable& polygons)
{
    return hanko.HankoNo >= 0 && hanko.HankoNo <= symbolCount(polygons) &&
           hanko.LineColor == listedStyle(hanko).LineColor &&
           hanko.PaintColor == listedStyle(hanko).PaintColor;
}

void drawSymbol(const HankoStyle& hanko, const PolygonTable& polygons, MapGeometry& geometry,
                DrawSurface& surface)
{
    if (canDraw(hanko, polygons)) {
        SymbolShapes(polygons, geometry, {surface, surface})
            .DrawHanko(hanko, surface.Width / 2, surface.Height / 2);
    }
}
