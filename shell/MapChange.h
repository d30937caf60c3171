#pragma once

#include "mapdata/MapSearch.h"

struct VarnModule;

/// Whether the map at `place` is the current one.
bool isCurrentMap(const MapPlace& place, const Folders& folders);

/// Makes the map at `place` the current one. What belongs to the map that was the current one until now is
/// dropped: the loaded item, the cumulative table with its strings and statistics, the sums of the contrast.
/// The symbol set stays. Choosing the current map again loads its files and drops nothing. Raises what
/// `chooseMap` raises; everything is then as it was.
void changeMap(const MapPlace& place, VarnModule& varn);
