#pragma once

#include "mapdata/BaseMap.h"
#include "render/MapGeometry.h"
#include "symbols/SymbolSet.h"

/// Whether a symbol of this number and these colours can be drawn.
bool canDraw(const HankoStyle& hanko, const PolygonTable& polygons);

/// Draws one symbol in the middle of `surface`; nothing where it cannot be drawn.
void drawSymbol(const HankoStyle& hanko, const PolygonTable& polygons, MapGeometry& geometry,
                DrawSurface& surface);
