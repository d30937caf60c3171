#pragma once

#include "dialectometry/DistanceMatrix.h"
#include "mapdata/BaseMap.h"

#include <cstdint>

/// What lengths on a map are counted in.
enum class LengthUnit : std::uint8_t { Kilometres, MapUnits };

/// How far the localities lie from each other.
struct Lengths
{
    DistanceMatrix lengths;
    LengthUnit unit = LengthUnit::MapUnits;
};

/// Where the localities have degrees, kilometres on the great circle (a sphere of 6371.0088 km, the mean
/// radius of the Earth); else kilometres by the scale bar of the map, where its label is a number of km or m;
/// else map units, as in a plane whose unit nobody knows.
Lengths localityLengths(const Localities& localities, const LocalityNames& names, const PlaceNames& scale);
