#pragma once

#include "dialectometry/AreaFill.h"

/// How often a border parts groups.
struct BorderShare
{
    /// Two neighbours, as `neighbourPairs` gives them.
    LocalityPair neighbours;
    /// From 0 (never) to 1 (always).
    double share = 0;
};

/// How groups of localities are drawn.
struct ClusterMapStyle
{
    AreaLook look = AreaLook::Colored;
    /// Whether each locality has the symbol of its group.
    bool symbols = false;
};

/// Draws groups of localities. `groups` is the number (from 1) of the group of each locality (from 0), 0 of
/// one that was left out, which is hatched; the legend tells their sizes. `shares` are drawn as borders, the
/// darker the higher; none where they are empty.
void drawClusterMap(const AreaMapParts& parts, const QString& title, std::span<const int> groups,
                    std::span<const BorderShare> shares, const ClusterMapStyle& style, MapSurfaces surfaces);
