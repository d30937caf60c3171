#pragma once

#include "shell/VarnModule.h"

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

/// Makes the map at `place` the current one, with its whole base map; polygon designs of another installation
/// folder come along where it has them. An error in any of the files leaves everything as it was.
void chooseMap(const MapPlace& place, VarnModule& varn);
