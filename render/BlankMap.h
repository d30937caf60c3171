#pragma once

#include "render/MapParts.h"

#include <QDateTime>

// The layers of the base map. Each is drawn on `surfaces.DrawTarget` at the scale of the map form.

/// The lines, each in its style and colour.
void PlotLineData(const MapLines& map, MapGeometry& geometry, MapSurfaces surfaces);

/// The dots of the localities, where the user asked for them.
void PlotLocateData(const BaseMap& map, const MapStyle& style, MapGeometry& geometry, MapSurfaces surfaces);

/// A mark of two circles at every locality, a disc in a ring, on `target`.
void PlotLocateCircle(const Localities& map, MapGeometry& geometry, DrawSurface& target);

/// The place names and the scale bar; a map without place names has none. Raises division by zero for a scale
/// bar without divisions.
void PlotKanjiData(const PlaceNames& map, const MapGeometry& geometry, MapSurfaces surfaces);

/// The stamp in the lower right corner: a file name, and the date and time of drawing under it.
void PlotDate(const QString& fileName, const QDateTime& time, MapSurfaces surfaces);

/// All layers, over what is drawn already.
void PlotBaseMap(const BlankMapParts& parts, MapSurfaces surfaces);

/// Clears the map form and draws the base map.
void DrawBlankMap(const BlankMapParts& parts, MapSurfaces surfaces);
