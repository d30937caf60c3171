#pragma once

#include "mapdata/BaseMap.h"
#include "mapdata/Folders.h"

#include <QStringList>

#include <optional>
#include <span>

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

/// A file of a map's folder that is a part of its base map.
struct MapPart
{
    const char* fileName;
    /// Puts what the file holds into the map, or raises what its reader raises.
    void (*load)(const DriveC& drive, const MapPlace& place, BaseMap& map);

    QString path(const MapPlace& place) const;
};

/// Lines, localities and place names; the polygon designs belong to the installation.
std::span<const MapPart> mapParts();

/// Loads the parts of the map at `place`. Those whose paths are in `without` stay as they are.
void loadBaseMap(const DriveC& drive, const MapPlace& place, const QStringList& without, BaseMap& map);

/// Makes the map at `place` the current one, with its whole base map; polygon designs of another installation
/// folder come along where it has them; names of localities do not. A map needs its localities; its lines and
/// place names are empty where it has no file of them. An error in any of the files leaves everything as it
/// was.
void chooseMap(const MapPlace& place, Folders& folders, BaseMap& map);

/// Takes the names of the map's localities from `Localities.csv`, for a map whose localities are loaded;
/// without that file there are none. A file that does not fit the map leaves none either, and raises what
/// `readLocalityNames` raises.
void loadLocalityNames(const Folders& folders, BaseMap& map);

/// Makes the folders of the current map: of its base map, and of its items and symbol files. Raises bad file
/// name for a name that no folder can have, and permission denied.
void makeMap(const Folders& folders);
