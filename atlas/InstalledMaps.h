#pragma once

#include "mapdata/Folders.h"

#include <vector>

/// A map of the installation, for the list of maps.
struct InstalledMap
{
    QString name;
    int items = 0;
    int localities = 0;
    /// Why it cannot be opened; empty where it can.
    QString trouble;
};

/// The maps of the installation, in the order of their names.
std::vector<InstalledMap> installedMaps(const Folders& folders);
