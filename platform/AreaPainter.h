#pragma once

#include "platform/Drawing.h"

#include <QPainter>

#include <span>

/// What areas are painted with.
struct AreaCanvas
{
    QPainter& painter;
    /// Painter units a twip.
    double scale;
    /// Whether the target is made of pixels.
    bool hasPixels;
};

/// Paints an area of `drawing`, its outline with `outline`. The painter has no brush and any pen afterwards.
void paintArea(const Drawing& drawing, const AreaOperation& area, const QPen& outline,
               const AreaCanvas& canvas);

constexpr int MostPointsAtOnce = 64;

/// Draws a long line piece by piece, for targets made of pixels: the time for a line grows faster than its
/// number of points, and round ends join the pieces without a seam.
void drawInPieces(std::span<const QPointF> points, QPainter& painter);
