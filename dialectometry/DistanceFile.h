#pragma once

#include "dialectometry/DistanceMatrix.h"
#include "mapdata/LocalityNames.h"

class SequentialReader;
class SequentialWriter;

/// A file of distances is a table (CSV) with the names of the localities on its first line and in its first
/// column. The map's localities are called by their names where each has one and no two share it, else by
/// number and name ("12 Amele"), and in a map without names by their numbers. An empty cell is no distance.

/// Reads the distances of a map of `localities`. The localities of the file may stand in another order, the
/// same on both sides; cells of both halves may differ by rounding. Raises, at the cell, type mismatch for a
/// word, a distance that is negative or unequal to that of the other half, a locality with a distance to
/// itself, and a name that the map does not have or that comes twice; subscript out of range for another
/// number of localities, overflow beyond 1e30, and input past end of file.
DistanceMatrix readDistances(SequentialReader& file, const LocalityNames& names, int localities);

void writeDistances(SequentialWriter& file, const LocalityNames& names, const DistanceMatrix& distances);
