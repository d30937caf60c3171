#pragma once

#include "geodata/TextLayer.h"

#include <QByteArray>

/// What `GeoData::writtenLayer` does.
QByteArray layerBytes(const TextLayer& layer, const QString& name, LayerFormat format);
