#pragma once

#include "dialectometry/AreaFill.h"
#include "dialectometry/DistanceMatrix.h"

/// How groups of localities are drawn.
struct ClusterMapStyle
{
    AreaLook look = AreaLook::Colored;
    /// Whether cells are filled.
    bool areas = true;
    /// Whether each locality has the symbol of its group.
    bool symbols = false;
};

/// Draws groups of localities. `groups` is the number (from 1) of the group of each locality (from 0), 0 of
/// one that was left out, which is hatched; the legend tells their sizes. `shares` says of every two
/// localities how often, from 0 to 1, a border parts them: the borders are the darker and wider the higher
/// that is. Where it is of no locality, lines part the groups.
void drawClusterMap(const AreaMapParts& parts, const QString& title, std::span<const int> groups,
                    const DistanceMatrix& shares, const ClusterMapStyle& style, MapSurfaces surfaces);
