#pragma once

#include "mapdata/BaseMap.h"
#include "mapdata/Folders.h"

#include <QStringList>

#include <optional>

/// Where a map lies: an installation folder, and a backslash with the map's name.
struct MapPlace
{
    QString VarnPath;
    QString VarnMapName;

    bool operator==(const MapPlace&) const = default;
};

/// The map that the file at `path` belongs to: the installation folder stands before the first "\VarnData" of
/// the path, the map's folder behind it. Nothing where the path has no such part or no folder behind it.
std::optional<MapPlace> mapPlaceOf(const QString& path);

/// Paths of the base-map files that the map at `place` lacks: of its localities, lines and place names.
QStringList missingParts(const DriveC& drive, const MapPlace& place);

/// Makes the map at `place` the current one, with its whole base map; polygon designs of another installation
/// folder come along where it has them. A map needs its localities; its lines and place names are empty where
/// it has no file of them. An error in any of the files leaves everything as it was.
void chooseMap(const MapPlace& place, Folders& folders, BaseMap& map);

/// Makes the folders of the current map: of its base map, and of its items and symbol files. Raises bad file
/// name for a name that no folder can have, and permission denied.
void makeMap(const Folders& folders);
