#pragma once

#include "dialectometry/AreaFill.h"
#include "dialectometry/Scaling.h"

/// The colour of each locality (from 0): its place on the first three dimensions as red, green and blue, each
/// over its whole range; 0 of one that was left out.
std::vector<QRgb> scalingColors(const Scaling& scaling);

/// Draws each cell in the colour of `scalingColors`, hatched where it was left out. The legend says what the
/// colours are and which part of the variance they show.
void drawScalingMap(const AreaMapParts& parts, const QString& title, const Scaling& scaling,
                    MapSurfaces surfaces);
