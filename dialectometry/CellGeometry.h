#pragma once

#include "dialectometry/GeosShapes.h"
#include "platform/Drawing.h"

#include <span>
#include <vector>

/// What the cells of localities fill: land, and a disc of the radius `margin` around each place off it.
struct CellArea
{
    std::vector<Ring> coasts;
    /// Whether the convex hull of the localities, widened by `margin`, is land as far as `landOf` says.
    bool hull = false;
    std::vector<Ring> openLines;
    double margin = 0;
};

/// Cells cut to an area.
struct CutCells
{
    /// The parts of the cell of each place.
    std::vector<std::vector<CellPolygon>> cells;
    std::vector<CellPolygon> area;
};

/// The Voronoi cells of `places`, no two of which are the same, within `area`. Raises invalid procedure call
/// where the geometry cannot be computed.
CutCells cutCells(std::span<const QPointF> places, const CellArea& area);
