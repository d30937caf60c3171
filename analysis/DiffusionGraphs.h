#pragma once

#include "analysis/CountMapParts.h"

// Graphs of the counts at each locality, over the blank map. `row` is the legend's row: k for word form k of
// a layered graph, `SingleGraph` for a graph of one word form. All raise division by zero where no item has
// been accumulated, and subscript out of range for a word form that the table does not have.

/// The row of a graph that is alone on its map.
constexpr int SingleGraph = 0;

/// A bar of word form k at each locality where it was met, 200 twips high for a count equal to the number of
/// items.
void DrawBarGraph(const CountMapParts& parts, int k, int row, MapSurfaces surfaces);

/// A circle of word form k at each locality, its radius 100 twips for a count equal to the number of items.
void DrawCircleGraph(const CountMapParts& parts, int k, int row, MapSurfaces surfaces);

/// The symbol of word form k at each locality whose count reaches the word form's minimum points, and where
/// `row` is not `SingleGraph`, its line of the legend.
void DrawHankoMap(const CountMapParts& parts, int k, int row, MapSurfaces surfaces);

/// The kinds of diffusion maps.
enum class DiffusionGraph { Bar, Circle, Symbol };

/// Draws the blank map and the graph of word form `currentWordform`, which then steps on to the next; after
/// the last comes the first.
void drawSingleGraph(const CountMapParts& parts, DiffusionGraph graph, int& currentWordform,
                     MapSurfaces surfaces);

/// Draws the blank map and the graphs of all word forms, later ones over earlier ones.
void drawLayeredGraph(const CountMapParts& parts, DiffusionGraph graph, MapSurfaces surfaces);
