#pragma once

#include "render/MapParts.h"

/// Draws, for each record of the symbol set, its symbol at every locality for every word form that contains
/// the record's kind, or, by `WholeWordForms`, equals it. The j-th word form of a locality stands (j - 1)
/// steps away from it, as `HankoPosition` says.
void PlotLinguisticData(const LinguisticMapParts& parts, MapSurfaces surfaces);

/// Draws the whole linguistic map: the base map, the symbols, and the legend.
void drawLinguisticMap(const LinguisticMapParts& parts, MapSurfaces surfaces);
