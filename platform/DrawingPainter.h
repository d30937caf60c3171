#pragma once

#include "platform/Drawing.h"

#include <QPainter>

#include <span>

/// Paints `drawing` with `painter` at `scale` painter units per twip. Pens, fills and fonts are set only when
/// they change.
void paintDrawing(const Drawing& drawing, QPainter& painter, double scale);

/// Consecutive operations of a drawing, and how opaque they are painted, from 0 to 1.
struct PaintedOperations
{
    std::size_t first = 0;
    /// Behind the last one.
    std::size_t end = 0;
    double opacity = 1;
};

/// Paints only these operations of `drawing`, otherwise as above.
void paintDrawing(const Drawing& drawing, QPainter& painter, double scale,
                  std::span<const PaintedOperations> parts);
