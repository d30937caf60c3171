#pragma once

#include "lingdata/LinguisticData.h"
#include "mapdata/BaseMap.h"
#include "mapdata/Folders.h"
#include "mapdata/MapFont.h"
#include "platform/PictureStore.h"
#include "render/MapGeometry.h"
#include "render/MapStyle.h"
#include "symbols/SymbolSet.h"

// What maps are drawn from: references to the structs that a drawing reads, and the geometry that it
// computes. Whoever holds them all puts them together; they must outlive the drawing.

/// What coded texts are written with: the installation with its glyphs, and the font of maps.
struct TextParts
{
    const Folders& folders;
    const MapFont& font;
    const MapStyle& style;
    const PictureStore& pictures;
};

/// What a blank map is drawn from.
struct BlankMapParts
{
    const BaseMap& map;
    const MapStyle& style;
    /// The file that is named in the corner, where the style asks for it.
    const QString& stampedFile;
    /// Scale, extent and positions, which drawing computes.
    MapGeometry& geometry;
};

/// What a linguistic map is drawn from: the base map, the word forms of an item, and their symbols.
struct LinguisticMapParts
{
    BlankMapParts base;
    TextParts text;
    const ItemAnswers& item;
    const SymbolSet& symbols;
};
