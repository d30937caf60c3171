#pragma once

#include "geodata/BaseLine.h"

class MapFrame;

/// The lines of the layers at `path`, a file that GDAL opens, as far as they lie in the map and not in the
/// room of its legend; lines of a kind that meet end to end are joined. The outlines of areas are lines, and
/// points are passed over. What a line stands for is told by the name of the layer, the feature or the file,
/// and is else a coast. Raises file not found, and type mismatch for a file that is no layer.
std::vector<BaseLine> readBaseLines(const QString& path, const MapFrame& frame, const QRectF& legend);
