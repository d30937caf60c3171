#pragma once

#include "dialectometry/DistanceMatrix.h"

#include <array>
#include <vector>

/// Where localities lie when their distances are drawn in few dimensions.
struct Scaling
{
    static constexpr int Dimensions = 3;

    /// For each locality (from 0) its place on each dimension, in the unit of the distances; none for one
    /// that was left out.
    std::vector<std::vector<double>> places;
    /// The part of the variance of the distances that the first, the first two, the first three dimensions
    /// show: their squared correlation with the distances on the plot. 1 where there is nothing to vary and
    /// the plot shows it exactly.
    std::array<double, Dimensions> variance{};
    /// Stress-1 of Kruskal (1964) of the first, the first two, the first three dimensions, from 0 (perfect)
    /// to 1; the plot may be of another size than the distances (the ratio scaling of Borg & Groenen 2005).
    std::array<double, Dimensions> stress{};
};

/// Classical scaling: Torgerson (1952), Multidimensional scaling: I. Theory and method. Localities that
/// `completeLocalities` leaves out have no place. The mean place is 0; on each dimension the place that is
/// farthest from it (of equals the first) is positive. Dimensions that the distances do not have are 0.
Scaling classicalScaling(const DistanceMatrix& distances);
