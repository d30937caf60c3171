#pragma once

#include "render/MapParts.h"

#include <functional>

/// A symbol of a linguistic map: that of a record, for a locality's word form of that number, about (x, y) in
/// twips.
struct PlacedSymbol
{
    int record = 0;
    int locality = 0;
    int word = 0;
    float x = 0;
    float y = 0;
};

/// Draws, for each record of the symbol set, its symbol at every locality for every word form that contains
/// the record's kind, or, by `WholeWordForms`, equals it. The j-th word form of a locality stands (j - 1)
/// steps away from it, as `HankoPosition` says. `note` is told of each symbol once it is drawn.
void PlotLinguisticData(const LinguisticMapParts& parts, MapSurfaces surfaces,
                        const std::function<void(const PlacedSymbol&)>& note = nullptr);

/// Draws the whole linguistic map: the base map, the symbols, and the legend.
void drawLinguisticMap(const LinguisticMapParts& parts, MapSurfaces surfaces);
