#pragma once

#include "geodata/GeoData.h"

/// What `GeoData::csvRows` does.
std::vector<TableRow> readCsvRows(const QByteArray& text, const ColumnChoice& choose);
