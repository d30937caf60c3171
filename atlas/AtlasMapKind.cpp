#include "atlas/AtlasMapKind.h"

#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"

namespace {

DiffusionGraph graphOf(AtlasMapKind kind)
{
    switch (kind) {
    case AtlasMapKind::Circles:
    case AtlasMapKind::LayeredCircles:
        return DiffusionGraph::Circle;
    case AtlasMapKind::Symbols:
        return DiffusionGraph::Symbol;
    default:
        return DiffusionGraph::Bar;
    }
}

} // namespace

QString nameOf(AtlasMapKind kind)
{
    switch (kind) {
    case AtlasMapKind::Linguistic:
        return QStringLiteral("Linguistic Map");
    case AtlasMapKind::Bars:
        return QStringLiteral("Bars of One Word Form");
    case AtlasMapKind::LayeredBars:
        return QStringLiteral("Bars of All Word Forms");
    case AtlasMapKind::Circles:
        return QStringLiteral("Circles of One Word Form");
    case AtlasMapKind::LayeredCircles:
        return QStringLiteral("Circles of All Word Forms");
    case AtlasMapKind::Symbols:
        return QStringLiteral("Symbols of All Word Forms");
    case AtlasMapKind::Contrast:
        return QStringLiteral("Contrast Map");
    }
    return {};
}

bool showsOneWordForm(AtlasMapKind kind)
{
    return kind == AtlasMapKind::Bars || kind == AtlasMapKind::Circles;
}

bool canDraw(AtlasMapKind kind, const VarnModule& varn)
{
    switch (kind) {
    case AtlasMapKind::Linguistic:
        return true;
    case AtlasMapKind::Symbols:
        return varn.NumWordforms > 0 && varn.NDiffusion > 0;
    case AtlasMapKind::Contrast:
        return varn.ContrastAnalysed;
    default:
        return varn.NumWordforms > 0;
    }
}

QString howToHave(AtlasMapKind kind, const VarnModule& varn)
{
    if (canDraw(kind, varn)) {
        return {};
    }
    if (kind == AtlasMapKind::Contrast) {
        return QStringLiteral("Execute a contrast analysis first: Accumulate Data.");
    }
    return varn.NumWordforms == 0
               ? QStringLiteral("Open a table of counts first: Accumulate Data.")
               : QStringLiteral("Open or make diffusion symbols first: Symbols on the execution form.");
}

/// The geometry and the word form that the map form goes on with stay as they are.
void drawTableMap(AtlasMapKind kind, int wordForm, VarnModule& varn, MapSurfaces surfaces)
{
    MapGeometry geometry;
    const CountMapParts parts{{varn, varn, varn.SymbolFileName, geometry}, textParts(varn), varn, varn, varn};
    if (kind == AtlasMapKind::Contrast) {
        drawContrastMap(parts, surfaces);
    } else if (showsOneWordForm(kind)) {
        drawSingleGraph(parts, graphOf(kind), wordForm, surfaces);
    } else {
        drawLayeredGraph(parts, graphOf(kind), surfaces);
    }
}
