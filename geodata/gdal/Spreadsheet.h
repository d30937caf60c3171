#pragma once

#include "geodata/TableRow.h"

#include <vector>

/// What `GeoData::spreadsheetRows` does.
std::vector<TableRow> readSpreadsheet(const QString& path);
