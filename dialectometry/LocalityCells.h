#pragma once

#include "mapdata/BaseMap.h"
#include "platform/Drawing.h"

#include <span>
#include <utility>
#include <vector>

/// A line between two cells, or between a cell and what lies outside of all; in map units.
struct CellBorder
{
    /// Numbers (from 0) of the cells on the left and on the right of the line as it runs on the screen.
    int left = Outside;
    int right = Outside;
    /// From its start to its end, which are one point where the line goes around a cell.
    std::vector<QPointF> points;
    /// Numbers of the first and the last point; lines that meet have one in common.
    int start = 0;
    int end = 0;

    static constexpr int Outside = -1;
};

/// Two localities, from 0.
using LocalityPair = std::pair<int, int>;

/// The cell of each locality: all points of the area that are nearer to it than to the other localities.
/// Localities at one point have one cell in common.
struct LocalityCells
{
    /// The localities (from 0) of each cell.
    std::vector<std::vector<int>> localities;
    /// The lines that bound the cells. Cells have no outlines of their own: `joinedCells` makes them of
    /// these.
    std::vector<CellBorder> borders;
    /// The area that all cells fill, in map units.
    Rings area;
    /// A common way from a locality to the nearest other, in map units: lines and marks that are wider than
    /// it would cover each other.
    double spacing = 0;
};

/// The cells of the localities of a map. Their area is what the closed coast lines hold: lines whose first
/// point equals the last, also put together of pieces that meet end to end; of such a line in another one (a
/// shore line around a coast) the inner one is the coast, and a rectangle is the frame of the map or of its
/// legend. Where no coast holds half of the localities, the area is their convex hull and a margin as wide as
/// a common way from a locality to the nearest other, without what open lines cut off as a sea. Each locality
/// outside of the area adds a disc of that radius around it. A map without localities has no cells. Raises
/// invalid procedure call for localities so far apart, or so near to each other, that numbers do not tell
/// their cells.
LocalityCells localityCells(const Localities& localities, const MapLines& lines);

/// Joins the cells of each group. `groups` is the number (from 0) of the group of each cell, below `count`;
/// cells of a negative one belong to none. Returns the outlines of each group, in map units.
std::vector<Rings> joinedCells(const LocalityCells& cells, std::span<const int> groups, int count);

/// The neighbours: the first localities of every two cells with a border in common, the lower number first,
/// in rising order.
std::vector<LocalityPair> neighbourPairs(const LocalityCells& cells);
