#pragma once

#include "analysis/CountMapParts.h"

/// Draws the contrast map over the blank map: a circle at each locality whose size is the difference of the
/// two sides' counts and whose colours say which side prevails, and the legend of shares. Raises division by
/// zero where no item has been accumulated, overflow for a difference that is too large.
void DrawRankGraph(const CountMapParts& parts, MapSurfaces surfaces);

/// Draws the blank map and the contrast map.
void drawContrastMap(const CountMapParts& parts, MapSurfaces surfaces);
