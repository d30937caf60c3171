#pragma once

#include "render/MapGeometry.h"

#include <QString>

#include <array>

struct VarnModule;

/// The kinds of map that the atlas shows: of the item, and of the open cumulative table and its contrast.
enum class AtlasMapKind { Linguistic, Bars, LayeredBars, Circles, LayeredCircles, Symbols, Contrast };

inline constexpr std::array AtlasMapKinds{
    AtlasMapKind::Linguistic,     AtlasMapKind::Bars,    AtlasMapKind::LayeredBars, AtlasMapKind::Circles,
    AtlasMapKind::LayeredCircles, AtlasMapKind::Symbols, AtlasMapKind::Contrast};

/// What the kind is called.
QString nameOf(AtlasMapKind kind);
/// Whether it shows a single word form of the table.
bool showsOneWordForm(AtlasMapKind kind);
/// Whether the state has what the kind is drawn from; of a linguistic map it is the page's matter.
bool canDraw(AtlasMapKind kind, const VarnModule& varn);
/// What to do to have it; empty where it can be drawn.
QString howToHave(AtlasMapKind kind, const VarnModule& varn);

/// Draws a map of the table, of any kind but the linguistic one, and where it shows a single word form, of
/// word form `wordForm` from 1 on. Raises what drawing raises.
void drawTableMap(AtlasMapKind kind, int wordForm, VarnModule& varn, MapSurfaces surfaces);
