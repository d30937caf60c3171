#include "render/SymbolCatalogue.h"

#include "platform/StandardColors.h"
#include "render/SymbolShapes.h"

#include <algorithm>

namespace {

constexpr int Columns = 16;
constexpr int Rows = 10;
constexpr int SymbolsPerPage = Columns * Rows;

/// The colours change from number to number, so that neighbours are told apart; white becomes black.
HankoStyle catalogueStyle(int number)
{
    HankoStyle hanko;
    hanko.HankoNo = static_cast<qint16>(number);
    const auto color = static_cast<StandardColor>(number % 16);
    hanko.LineColor = static_cast<qint16>(color == StandardColor::LightWhite ? StandardColor::Black : color);
    hanko.PaintColor = static_cast<qint16>((number + 11) % 16);
    hanko.PaintOn = 1;
    hanko.SymbolSize = 1;
    hanko.LineThick = 1;
    return hanko;
}

} // namespace

int LastSymbolPage(const PolygonTable& polygons)
{
    return (symbolCount(polygons) + SymbolsPerPage - 1) / SymbolsPerPage;
}

void PlotSymbol(const PolygonTable& polygons, MapGeometry& geometry, int page, MapSurfaces surfaces)
{
    constexpr int NumberSize = 6; // small enough for a number to stand clear of its symbol
    constexpr float NumberOffset = 200;

    DrawSurface& target = surfaces.DrawTarget;
    const float cellWidth = surfaces.area.Width / Columns;
    const float cellHeight = (surfaces.area.Height - 500) / Rows;
    const float x0 = cellWidth - 250;
    const float y0 = 350;
    const int first = SymbolsPerPage * (page - 1) + 1;
    const int last = std::min(SymbolsPerPage * page, symbolCount(polygons));

    surfaces.frmMap.Cls();
    const int fontSize = target.FontSize;
    target.FontSize = NumberSize;
    // On a narrow form the first numbers would begin left of its edge.
    const float scaleLeft = target.ScaleLeft;
    target.ScaleLeft += std::min(x0 - NumberOffset, 0.0F);
    SymbolShapes shapes(polygons, geometry, surfaces);
    float x = x0;
    float y = y0;
    for (int number = first; number <= last; ++number) {
        target.PrintAt(x - NumberOffset, y - 300, QString::number(number));
        shapes.DrawHanko(catalogueStyle(number), x, y);
        XmaxYmax(x, y, x0, y0, surfaces.area.Width, surfaces.area.Height, cellWidth, cellHeight);
    }
    target.ScaleLeft = scaleLeft;
    target.FontSize = fontSize;
    surfaces.thinLines();
}
