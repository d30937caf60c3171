#pragma once

#include <QString>
#include <QStringList>

/// Whether a file of that name holds layers: .kml, .kmz, .geojson, .json, .gpkg, .shp, .gpx, or a zip with
/// one of them. The metadata of CLDF, and a zip with them, do not.
bool isLayer(const QString& path);

/// The files with layers at `path`, as GDAL opens them: `path` itself, or those in a zip. Raises type
/// mismatch for a broken zip.
QStringList layerFiles(const QString& path);

/// Those of them with lines or areas, from which a base map can be drawn.
QStringList baseMapLayersOf(const QString& path);
