#pragma once

#include "geodata/BaseLine.h"

#include <QString>

/// What `GeoData::readLines` and `GeoData::simplified` do. What a line stands for is told by the name of the
/// layer, the feature or the file, and is else a coast. The outlines of areas are lines; points are passed
/// over.
std::vector<BaseLine> readBaseLines(const QString& path, const BaseLineArea& area);
QPolygonF simplifiedLine(const QPolygonF& line, double tolerance);
