#pragma once

#include "exchange/SourceTable.h"

/// Reads the points of all layers in a file as a table: a row a point, a column an attribute, and last the
/// columns "longitude" and "latitude" (WGS 84, whatever the reference system of the layer), or "x" and "y"
/// where the layers have none and their coordinates are no degrees. Raises type mismatch for a file that is
/// no layer, is not sound, or has no points.
SourceTable readLayerTable(const QString& path);
