#pragma once

#include "platform/Drawing.h"

#include <span>
#include <vector>

/// What the cells of localities fill.
struct CellArea
{
    std::vector<Ring> coasts;
    /// Whether the convex hull of the localities, widened by `margin`, belongs to it.
    bool hull = false;
    /// The middles of discs of the radius `margin`.
    std::vector<QPointF> discs;
    double margin = 0;
};

/// A polygon: its first ring runs counter-clockwise on the screen, the others, its holes, clockwise.
using CellPolygon = std::vector<Ring>;

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
