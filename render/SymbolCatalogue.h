#pragma once

#include "mapdata/BaseMap.h"
#include "render/MapGeometry.h"

/// Number of catalogue pages with the loaded polygon designs; a page shows 160 symbols.
int LastSymbolPage(const PolygonTable& polygons);

/// Draws one page of the catalogue of symbol numbers: each number with its symbol, in 16 columns and 10 rows.
/// `page` is 1..LastSymbolPage.
void PlotSymbol(const PolygonTable& polygons, MapGeometry& geometry, int page, MapSurfaces surfaces);
