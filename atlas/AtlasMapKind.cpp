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

bool isOfItem(AtlasMapKind kind)
{
    return kind == AtlasMapKind::Linguistic || kind == AtlasMapKind::Areas ||
           kind == AtlasMapKind::Isoglosses;
}

bool isOfTable(AtlasMapKind kind)
{
    return !isOfItem(kind) && !isOfSurvey(kind);
}

bool isOfSurvey(AtlasMapKind kind)
{
    return kind >= AtlasMapKind::Bundles;
}

bool isPlot(AtlasMapKind kind)
{
    return kind == AtlasMapKind::Dendrogram || kind == AtlasMapKind::ScalingPlot ||
           kind == AtlasMapKind::LengthPlot;
}

std::optional<DistanceMapKind> distanceMap(AtlasMapKind kind)
{
    switch (kind) {
    case AtlasMapKind::Reference:
        return DistanceMapKind::Reference;
    case AtlasMapKind::Beams:
        return DistanceMapKind::Beams;
    case AtlasMapKind::Clusters:
        return DistanceMapKind::Clusters;
    case AtlasMapKind::Dendrogram:
        return DistanceMapKind::Dendrogram;
    case AtlasMapKind::Scaling:
        return DistanceMapKind::Scaling;
    case AtlasMapKind::ScalingPlot:
        return DistanceMapKind::ScalingPlot;
    case AtlasMapKind::LengthPlot:
        return DistanceMapKind::LengthPlot;
    default:
        return std::nullopt;
    }
}

QString nameOf(AtlasMapKind kind)
{
    constexpr std::array Names = {"Linguistic Map",
                                  "Areas of the Item",
                                  "Isoglosses of the Item",
                                  "Bars of One Word Form",
                                  "Bars of All Word Forms",
                                  "Circles of One Word Form",
                                  "Circles of All Word Forms",
                                  "Symbols of All Word Forms",
                                  "Contrast Map",
                                  "Isoglosses of Many Items",
                                  "Distances to a Locality",
                                  "Beams between Neighbours",
                                  "Groups of Localities",
                                  "Tree of Localities",
                                  "Colours by Scaling",
                                  "Plot by Scaling",
                                  "Distances and Kilometres"};
    static_assert(Names.size() == AtlasMapKinds.size());
    return QLatin1String(Names.at(static_cast<std::size_t>(kind)));
}

bool showsOneWordForm(AtlasMapKind kind)
{
    return kind == AtlasMapKind::Bars || kind == AtlasMapKind::Circles;
}

bool canDraw(AtlasMapKind kind, const VarnModule& varn)
{
    if (!isOfTable(kind)) {
        return isOfItem(kind) || varn.NLocality > 0;
    }
    if (kind == AtlasMapKind::Contrast) {
        return varn.ContrastAnalysed;
    }
    return varn.NumWordforms > 0 && (kind != AtlasMapKind::Symbols || varn.NDiffusion > 0);
}

QString howToHave(AtlasMapKind kind, const VarnModule& varn)
{
    if (canDraw(kind, varn)) {
        return {};
    }
    if (isOfSurvey(kind)) {
        return QStringLiteral("Open a map first.");
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
