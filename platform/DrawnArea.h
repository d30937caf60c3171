#pragma once

#include "platform/Drawing.h"

#include <QRectF>

/// The smallest rectangle, in twips, that holds everything in `drawing`, its lines with their width.
QRectF drawnArea(const Drawing& drawing);
/// The same of the operations from number `first` to before number `end`; empty where there is none.
QRectF drawnArea(const Drawing& drawing, std::size_t first, std::size_t end);
