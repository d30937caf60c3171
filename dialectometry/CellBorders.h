#pragma once

#include "dialectometry/CellGeometry.h"
#include "dialectometry/LocalityCells.h"

/// The lines between cells and around them, each once. Points of the cells that are the same but for rounding
/// become one; `extent` is the width of the map.
std::vector<CellBorder> bordersOf(const std::vector<std::vector<CellPolygon>>& cells, double extent);
