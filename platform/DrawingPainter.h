#pragma once

#include "platform/Drawing.h"

#include <QPainter>

/// Paints `drawing` with `painter` at `scale` painter units per twip. Pens, fills and fonts are set only when
/// they change.
void paintDrawing(const Drawing& drawing, QPainter& painter, double scale);
