#pragma once

#include "dialectometry/AreaFill.h"
#include "dialectometry/DistanceMatrix.h"

/// Draws beams: a line between every two neighbours, the darker and wider the more alike they are, and the
/// legend of the classes. Neighbours without a distance have none.
void drawBeamMap(const AreaMapParts& parts, const QString& title, const DistanceMatrix& distances,
                 MapSurfaces surfaces);
