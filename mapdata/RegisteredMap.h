#pragma once

#include "mapdata/Folders.h"
#include "mapdata/MapFont.h"

/// Path of the file that the map set-up form registers a map in. It is not the file that start-up reads.
QString registeredMapFile();

/// Writes the installation folder, the current map and the map font to that file, seven fields on one line.
/// Raises path not found, permission denied, disk full, device I/O error.
void saveRegisteredMap(const Folders& folders, const MapFont& font);
