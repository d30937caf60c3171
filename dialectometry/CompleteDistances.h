#pragma once

#include "dialectometry/DistanceMatrix.h"

#include <vector>

/// The localities (from 0), in rising order, that remain when those without a distance to another are left
/// out one by one, first the one that lacks most (of equals the last): between them all distances are known.
std::vector<int> completeLocalities(const DistanceMatrix& distances);
