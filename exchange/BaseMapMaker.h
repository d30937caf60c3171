#pragma once

#include "exchange/BaseMapLines.h"
#include "exchange/ImportReport.h"
#include "mapdata/BaseMap.h"

#include <QStringList>

/// The lines of a new map: a neat-line around it, a line around the room of the legend, and what `layers`
/// (paths that GDAL opens) show of coasts, borders, lakes and rivers. A long line is parted into lines that
/// share their ends. Where the lines are too many, they are simplified, and then the least important are left
/// out: short ones first, rivers before lakes, borders and coasts of the same length. Raises what
/// `readBaseLines` raises.
MapLines makeBaseMap(const MapFrame& frame, const QRectF& legend, const QStringList& layers,
                     ImportReport& report);
