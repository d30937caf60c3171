#pragma once

#include "analysis/ContrastData.h"
#include "analysis/CumulativeTable.h"
#include "analysis/DiffusionSymbols.h"
#include "render/MapParts.h"

/// What the maps of a cumulative table are drawn from: the base map, the counts, the symbols of a diffusion
/// map and the sums of a contrast map.
struct CountMapParts
{
    BlankMapParts base;
    TextParts text;
    const CumulativeData& counts;
    const DiffusionSymbols& symbols;
    const ContrastData& contrast;
};
