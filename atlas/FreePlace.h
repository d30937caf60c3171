#pragma once

#include "platform/Drawing.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <vector>

/// What a legend should not cover.
struct Obstacles
{
    /// Places that count most, `room` around each.
    const std::vector<QPointF>& localities;
    /// Points of what else is on the map.
    const std::vector<QPointF>& others;
    double room = 0;
};

/// Where a legend of `size` on `paper` covers as few localities as can be; of these places the one where it
/// covers the fewest other points, and of these the one nearest to a corner. Its top left corner, in the unit
/// of the others.
QPointF freePlace(const QRectF& paper, QSizeF size, const Obstacles& obstacles);

/// Points along the lines among the operations from number `first` to before number `end`, close enough to
/// one another to tell what covers a line, and the corners of their texts.
std::vector<QPointF> pointsOf(const Drawing& drawing, std::size_t first, std::size_t end);
