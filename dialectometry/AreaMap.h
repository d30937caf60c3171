#pragma once

#include "dialectometry/AreaFill.h"

/// How the areas of an item are drawn.
struct AreaMapStyle
{
    AreaLook look = AreaLook::Colored;
    /// Whether the symbols of the linguistic map stand on the areas.
    bool withSymbols = false;
};

/// The numbers (from 0) of the records that mark the word forms of each locality (from 0), each once and
/// rising: for a record k of the symbol set, k - 1. None for a locality without an answer or behind the
/// item's last.
std::vector<std::vector<int>> recordsOfLocalities(const ItemAnswers& item, const SymbolSet& symbols,
                                                  bool wholeWordForms, int localities);

/// The fill of each record: the colour of its symbol, lighter, so that lines and symbols stand out; records
/// of one colour get other tints and patterns. In the hatched look each has a pattern of its own.
std::vector<AreaFill> recordFills(const SymbolSet& symbols, AreaLook look);

/// Draws the areas of an item: each cell filled as the record that marks its word form, several as stripes,
/// the base map over them, in the hatched look lines between them, then the symbols on request and the
/// legend: the records that mark a locality, with the number of localities, except those whose caption has a
/// hyphen. Cells whose word forms no record marks are a light grey; those without an answer stay white.
void drawAreaMap(const LinguisticMapParts& parts, const LocalityCells& cells, const AreaMapStyle& style,
                 MapSurfaces surfaces);

/// Begins the map of areas by what lies under the base map, the filled cells.
void drawAreas(const LinguisticMapParts& parts, const LocalityCells& cells, AreaLook look,
               MapSurfaces surfaces);

/// Draws what stands over the base map of the map of areas: lines between areas, symbols and legend.
void drawOverAreas(const LinguisticMapParts& parts, const LocalityCells& cells, const AreaMapStyle& style,
                   MapSurfaces surfaces);
