#pragma once

#include "dialectometry/DistanceMaps.h"
#include "render/MapGeometry.h"

#include <QString>

#include <array>
#include <optional>

struct VarnModule;

/// The kinds of map that the atlas shows: of the item, of the open cumulative table and its contrast, and of
/// the survey as a whole.
enum class AtlasMapKind {
    Linguistic,
    Areas,
    Isoglosses,
    Bars,
    LayeredBars,
    Circles,
    LayeredCircles,
    Symbols,
    Contrast,
    Bundles,
    Reference,
    Beams,
    Clusters,
    Dendrogram,
    Scaling,
    ScalingPlot,
    LengthPlot
};

inline constexpr std::array AtlasMapKinds{
    AtlasMapKind::Linguistic,     AtlasMapKind::Areas,       AtlasMapKind::Isoglosses,
    AtlasMapKind::Bars,           AtlasMapKind::LayeredBars, AtlasMapKind::Circles,
    AtlasMapKind::LayeredCircles, AtlasMapKind::Symbols,     AtlasMapKind::Contrast,
    AtlasMapKind::Bundles,        AtlasMapKind::Reference,   AtlasMapKind::Beams,
    AtlasMapKind::Clusters,       AtlasMapKind::Dendrogram,  AtlasMapKind::Scaling,
    AtlasMapKind::ScalingPlot,    AtlasMapKind::LengthPlot};

/// Whether it is a map of the item: it goes on with the next one when a page is turned.
bool isOfItem(AtlasMapKind kind);
/// Whether it is a map of the open cumulative table.
bool isOfTable(AtlasMapKind kind);
/// Whether it is a map of answers to many items.
bool isOfSurvey(AtlasMapKind kind);
/// Whether it is a plot without the base map.
bool isPlot(AtlasMapKind kind);
/// The map of distances that it is; nothing where it is none.
std::optional<DistanceMapKind> distanceMap(AtlasMapKind kind);

/// What the kind is called.
QString nameOf(AtlasMapKind kind);
/// Whether it shows a single word form of the table.
bool showsOneWordForm(AtlasMapKind kind);
/// Whether the state has what the kind is drawn from; of a map of the item it is the page's matter.
bool canDraw(AtlasMapKind kind, const VarnModule& varn);
/// What to do to have it; empty where it can be drawn.
QString howToHave(AtlasMapKind kind, const VarnModule& varn);

/// Draws a map of the table and, where it shows a single word form, of word form `wordForm`
/// from 1 on. Raises what drawing raises.
void drawTableMap(AtlasMapKind kind, int wordForm, VarnModule& varn, MapSurfaces surfaces);
