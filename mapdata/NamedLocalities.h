#pragma once

#include "mapdata/BaseMap.h"

/// The localities of a map with their names.
struct NamedLocalities
{
    Localities localities;
    LocalityNames names;
};
