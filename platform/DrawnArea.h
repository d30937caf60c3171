#pragma once

#include "platform/Drawing.h"

#include <QRectF>

/// The smallest rectangle, in twips, that holds everything in `drawing`, its lines with their width.
QRectF drawnArea(const Drawing& drawing);
