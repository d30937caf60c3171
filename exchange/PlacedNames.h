#pragma once

#include "mapdata/BaseMap.h"

#include <QRectF>

class MapFrame;

/// The place names of a new map: its title where the room of the legend begins, and the scale bar along the
/// lower or upper edge where it covers no locality and the fewest lines.
PlaceNames makePlaceNames(const QString& title, const QRectF& legend, const MapFrame& frame,
                          const Localities& localities, const MapLines& lines);
