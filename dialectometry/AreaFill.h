#pragma once

#include "dialectometry/LocalityCells.h"
#include "render/MapParts.h"

/// What an area is painted with: a ground, and over it a pattern of ink unless that is solid. 0 (fully
/// transparent) is no ground.
struct AreaFill
{
    QRgb ground = 0;
    QRgb ink = 0;
    FillPattern pattern = FillPattern::Solid;

    bool operator==(const AreaFill&) const = default;
};

/// What a map is made for: a screen or print with colours, where colour tells areas, or print without, where
/// patterns do.
enum class AreaLook { Colored, Hatched };

/// The fill of what nothing is known of.
AreaFill missingFill();
/// Patterns of black for areas by number, from 0, the first ones the least alike; later ones have a grey
/// ground.
AreaFill hatchedFill(int number);
/// `color` mixed with white: all of it by 0, white by 1.
QRgb tint(QRgb color, double white);

/// What maps of areas are drawn from: the base map and its cells, and what their texts are written with.
struct AreaMapParts
{
    BlankMapParts base;
    TextParts text;
    const LocalityCells& cells;
};

/// Fills for cells.
struct FilledCells
{
    std::vector<AreaFill> fills;
    /// For each locality (from 0) the numbers (from 0) of its fills, each once and rising; several are
    /// painted as stripes, and a cell of several localities has the fills of all.
    std::vector<std::vector<int>> ofLocality;
};

/// Begins a map: clears the map form and sets the scale. The base map is drawn over what follows, so that its
/// names can be read.
void beginMap(const AreaMapParts& parts, MapSurfaces surfaces);

/// Begins a map by its cells, those of one fill painted as one area.
void drawCells(const AreaMapParts& parts, const FilledCells& cells, MapSurfaces surfaces);

/// Begins a map by its cells, and draws the base map over them.
void drawFilledMap(const AreaMapParts& parts, const FilledCells& cells, MapSurfaces surfaces);

/// Draws thin lines between cells of different fills.
void drawFillBorders(const AreaMapParts& parts, const FilledCells& cells, DrawSurface& target);

/// How wide marks and lines may be, in twips, that are `wanted` wide where localities lie far apart: no wider
/// than a part of the way to the next locality.
double markWidth(const AreaMapParts& parts, double wanted);
/// The pens with widths that fit so, each a pixel at least, the widest one as wide as it may be.
std::vector<LinePen> fittingPens(std::span<const LinePen> pens, const AreaMapParts& parts);

/// Paints `rings`, in twips, with the fills, as stripes where there are several. Without an outline.
void paintArea(const Rings& rings, std::span<const AreaFill> fills, DrawSurface& target);
