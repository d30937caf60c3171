#pragma once

#include "dialectometry/GeosShapes.h"

/// The convex hull of `places`, widened by `margin`, without the seas: parts that `lines` cut off at its
/// edge, which are larger than several places have on the average and hold far fewer places than such an area
/// would. A line that ends inside, but near the edge, is meant to reach it.
Shape landOf(const Geos& geos, std::span<const QPointF> places, const std::vector<Ring>& lines,
             double margin);
