#pragma once

#include "platform/Drawing.h"

#include <QLineF>

#include <span>

/// What a pattern is drawn with: lines of this width with flat ends, or with round ones for dots. Twips.
struct HatchPen
{
    double width = 0;
    bool dots = false;
};

/// The pen of a pattern that is not solid.
HatchPen hatchPen(FillPattern pattern);

/// The lines of a pattern that is not solid as far as they lie in the area of `rings` of `points`, in twips.
/// A dot is a very short line.
std::vector<QLineF> hatchLines(const std::vector<QPointF>& points, std::span<const PointRange> rings,
                               FillPattern pattern);
