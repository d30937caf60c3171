#pragma once

#include "mapdata/BaseMap.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"

/// Parts of a base map, and the polygon designs of symbols.
inline constexpr FileKind MapPartFiles{QLatin1String("Map files"), QLatin1String(".map")};
inline constexpr FileKind PolygonFiles{QLatin1String("Polygon designs"), QLatin1String(".sbl")};

// Readers and writers of the base-map files. Each reader reads a whole file into a fresh value; the counts in
// the file govern. They raise input past end of file for a short file, subscript out of range for a count
// beyond its bound, and type mismatch or overflow for a field that is not the number it should be.

/// `Loc.map`: the count, then x and y of each locality.
Localities readLocalities(SequentialReader& file);
void writeLocalities(SequentialWriter& file, const Localities& map);

/// `Line.map`: the count, then for each line its header (kind, points, colour, style, offset) and its points.
MapLines readLines(SequentialReader& file);
void writeLines(SequentialWriter& file, const MapLines& map);

/// `kanji.map`: the count, then position and text of each name, then position, label, divisions (at most
/// 1000) and length of the scale bar.
PlaceNames readPlaceNames(SequentialReader& file);
void writePlaceNames(SequentialWriter& file, const PlaceNames& map);

/// `Square.sbl`: the count, then for each polygon its vertex count, its reference point with a value, and its
/// vertices. Both functions leave the vertices where the file has them: singles would not come back the same
/// from a subtraction and an addition.
PolygonTable readAbsolutePolygons(SequentialReader& file);
void writeAbsolutePolygons(SequentialWriter& file, const PolygonTable& table);

/// `Square.sbl` with its vertices made relative to the reference points, as symbols are drawn.
PolygonTable readPolygons(SequentialReader& file);

/// The folder of a map's base-map files. `mapName` begins with a backslash.
QString mapFolder(const QString& varnPath, const QString& mapName);
/// The file of the installation's polygon designs.
QString polygonFile(const QString& varnPath);

// The loaders put what a file holds into the shared state. A load that fails leaves there what was there.
// `varnPath` is the installation folder, `mapName` begins with a backslash.

void LoadLocateData(const DriveC& drive, const QString& varnPath, const QString& mapName, Localities& map);
void LoadLineData(const DriveC& drive, const QString& varnPath, const QString& mapName, MapLines& map);
void LoadKanjiData(const DriveC& drive, const QString& varnPath, const QString& mapName, PlaceNames& map);
void LoadSquareData(const DriveC& drive, const QString& varnPath, PolygonTable& table);
