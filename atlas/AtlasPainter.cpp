#include "atlas/AtlasDrawing.h"

namespace {

/// What is seen of the symbols that do not stand out.
constexpr double Faded = 0.12;
/// Farther from its place no symbol is drawn, in twips.
constexpr double SymbolReach = 900;

/// Parts of a drawing to be painted, as few as can be.
class PaintedParts
{
public:
    void add(const OperationRange& range, double opacity)
    {
        if (!parts.empty() && parts.back().end == range.first && parts.back().opacity == opacity) {
            parts.back().end = range.end;
        } else if (range.first < range.end) {
            parts.push_back({range.first, range.end, opacity});
        }
    }

    std::vector<PaintedOperations> parts;
};

void addSymbols(const AtlasDrawing& map, const AtlasView& view, PaintedParts& painted)
{
    const QRectF near = view.visible.adjusted(-SymbolReach, -SymbolReach, SymbolReach, SymbolReach);
    for (const DrawnSymbol& symbol : map.symbols) {
        if (near.contains(symbol.x, symbol.y)) {
            const bool standsOut = view.records.empty() || view.records.contains(symbol.record);
            painted.add(symbol.operations, standsOut ? 1 : Faded);
        }
    }
}

} // namespace

void paintAtlasMap(const AtlasDrawing& map, QPainter& painter, const AtlasView& view)
{
    const std::size_t all = map.drawing.operations.size();
    const bool hasLegend = map.legend.first < map.legend.end;
    const std::size_t symbols = map.symbols.empty() ? all : map.symbols.front().operations.first;
    const std::size_t behind = map.symbols.empty() ? all : map.symbols.back().operations.end;
    PaintedParts painted;
    painted.add({0, hasLegend ? std::min(symbols, map.legend.first) : symbols}, 1);
    addSymbols(map, view, painted);
    if (hasLegend && view.withLegend) {
        painted.add(map.legend, 1);
    }
    painted.add({hasLegend ? map.legend.end : behind, all}, 1);
    paintDrawing(map.drawing, painter, view.scale, painted.parts);
}

void paintLegend(const AtlasDrawing& map, QPainter& painter, double scale)
{
    const PaintedOperations legend{map.legend.first, map.legend.end};
    paintDrawing(map.drawing, painter, scale, {&legend, 1});
}
