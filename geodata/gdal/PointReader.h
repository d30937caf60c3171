#pragma once

#include "geodata/LayerPoints.h"

#include <QStringList>

/// What `GeoData::readPoints` and `GeoData::holdsLines` do.
LayerPoints readLayerPoints(const QStringList& files);
bool hasLines(const QString& file);
