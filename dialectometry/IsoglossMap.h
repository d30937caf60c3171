#pragma once

#include "dialectometry/AreaFill.h"

/// For each locality (from 0) the numbers of its kinds, each once and rising; none where nothing was
/// answered.
using LocalityKinds = std::vector<std::vector<int>>;

/// How much changes at each border of `cells` (0 at one with the outside).
struct BorderChanges
{
    /// The sum over the items that both sides answered: 1 where they have no kind in common, a half where
    /// they share some but not all.
    std::vector<double> changes;
};

/// The changes of one item.
BorderChanges borderChanges(const LocalityCells& cells, const LocalityKinds& kinds);
/// Adds those of another item.
void addChanges(BorderChanges& sum, const BorderChanges& item);

/// How isoglosses are drawn.
struct IsoglossStyle
{
    /// Whether the lines are rounded; their ends stay.
    bool smooth = true;
    /// Whether the strongest borders of a bundle show their number of items.
    bool numbers = false;

    bool operator==(const IsoglossStyle&) const = default;
};

/// Draws the isoglosses of one item: where all kinds change a full line, where some do a dashed one. The
/// title is coded as the captions of symbols.
void drawIsoglossMap(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                     const IsoglossStyle& style, MapSurfaces surfaces);

/// Begins that map by its lines, which lie under the base map so that its names can be read.
void drawIsoglosses(const AreaMapParts& parts, const BorderChanges& changes, const IsoglossStyle& style,
                    MapSurfaces surfaces);
/// Draws its legend. The title is coded as the captions of symbols.
void drawIsoglossLegend(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                        MapSurfaces surfaces);

/// Draws the bundles of isoglosses of several items: each border as wide and dark as the number of items that
/// change there, and the legend of the classes of numbers.
void drawBundleMap(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                   const IsoglossStyle& style, MapSurfaces surfaces);

/// The line through other points that has its corners cut off, again and again; ends stay, and a closed line
/// stays closed.
std::vector<QPointF> smoothed(const std::vector<QPointF>& line);
