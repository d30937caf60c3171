#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <vector>

/// Where a legend of `size` covers as few of `spots` on `paper` as can be, `room` around each kept free; of
/// these places the one nearest to a corner. Its top left corner, in the unit of the others.
QPointF freePlace(const QRectF& paper, QSizeF size, const std::vector<QPointF>& spots, double room);
