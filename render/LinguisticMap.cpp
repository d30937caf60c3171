#include "render/LinguisticMap.h"

#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/SymbolMarks.h"
#include "render/SymbolShapes.h"
#include "symbols/SymbolFile.h"

namespace {

/// The way from one word form of a locality to the next, in twips.
QPointF wordStep(qint16 hankoPosition)
{
    constexpr double Step = 80;
    switch (hankoPosition) {
    case HankoRight:
        return {Step, 0};
    case HankoLeft:
        return {-Step, 0};
    case HankoUp:
        return {0, -Step};
    case HankoDown:
        return {0, Step};
    default:
        return {0, 0};
    }
}

using SymbolNote = std::function<void(const PlacedSymbol&)>;

/// Draws the symbol of record k at every word form that it marks.
void plotRecord(const LinguisticMapParts& parts, int k, const SymbolMarks& marks, SymbolShapes& shapes,
                const SymbolNote& note)
{
    const BaseMap& map = parts.base.map;
    MapGeometry& geometry = parts.base.geometry;
    const QPointF step = wordStep(parts.base.style.HankoPosition);
    const auto dx = static_cast<float>(step.x());
    const auto dy = static_cast<float>(step.y());
    for (int i = 1; i <= parts.item.NLocate; ++i) {
        const float x = geometry.toScreen(map.LocXY(i, 0));
        const float y = geometry.toScreen(map.LocXY(i, 1));
        geometry.ScreenXY(i, 0) = x;
        geometry.ScreenXY(i, 1) = y;
        for (int j = 1; j <= parts.item.WordCount(i); ++j) {
            if (marks(k, parts.item.WordData(i, j))) {
                // A word form has its place by its number, also where those before it have no symbol.
                const auto steps = static_cast<float>(j - 1);
                const PlacedSymbol symbol{k, i, j, x + steps * dx, y + steps * dy};
                shapes.DrawHanko(parts.symbols.Hanko(k), symbol.x, symbol.y);
                if (note) {
                    note(symbol);
                }
            }
        }
    }
}

} // namespace

void PlotLinguisticData(const LinguisticMapParts& parts, MapSurfaces surfaces, const SymbolNote& note)
{
    const SymbolMarks marks(parts.symbols, parts.base.style.WholeWordForms);
    SymbolShapes shapes(parts.base.map, parts.base.geometry, surfaces);
    for (int k = 1; k <= parts.symbols.NHanrei; ++k) {
        try {
            plotRecord(parts, k, marks, shapes, note);
        } catch (const RunTimeError& error) {
            throw ofRecord(error, parts.symbols, k);
        }
    }
    surfaces.thinLines();
}

void drawLinguisticMap(const LinguisticMapParts& parts, MapSurfaces surfaces)
{
    DrawBlankMap(parts.base, surfaces);
    PlotLinguisticData(parts, surfaces);
    PlotHanrei(parts, surfaces);
}
