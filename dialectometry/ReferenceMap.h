#pragma once

#include "dialectometry/ValueClasses.h"

/// How the distances to one locality are drawn.
struct ReferenceMapStyle
{
    AreaLook look = AreaLook::Colored;
    ClassRule rule = ClassRule::AroundMean;
};

/// Draws the distance of each locality (from 0) to `reference` (from 0), which is marked by a star: the cells
/// in the fills of their classes, hatched where the distance is not a number, and the legend of the classes
/// with their numbers of localities. The distance of the reference itself belongs to no class.
void drawReferenceMap(const AreaMapParts& parts, const QString& title, std::span<const double> distances,
                      int reference, const ReferenceMapStyle& style, MapSurfaces surfaces);
