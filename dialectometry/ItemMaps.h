#pragma once

#include "dialectometry/AreaMap.h"
#include "dialectometry/IsoglossMap.h"

#include <cstdint>

/// What a map of one item shows.
enum class ItemMapKind : std::uint8_t { Symbols, Areas, Isoglosses };

/// Which map of an item is drawn, and how.
struct ItemMapSettings
{
    ItemMapKind kind = ItemMapKind::Symbols;
    AreaMapStyle areas;
    IsoglossStyle isoglosses;
};

/// Draws the map of an item. Isoglosses run where the records change that mark its word forms. A map of
/// symbols needs no `cells`.
void drawItemMap(const LinguisticMapParts& parts, const LocalityCells& cells, const ItemMapSettings& settings,
                 MapSurfaces surfaces);

/// What the map of an item adds to the base map: what lies under it, and what stands over it.
struct ItemLayers
{
    Drawing under;
    Drawing over;
};

/// What `drawItemMap` draws without the base map.
ItemLayers itemLayers(const LinguisticMapParts& parts, const LocalityCells& cells,
                      const ItemMapSettings& settings, MapSurfaces surfaces);
