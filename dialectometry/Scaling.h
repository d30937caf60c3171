#pragma once

#include <array>
#include <vector>

/// Where localities lie when their distances are drawn in few dimensions.
struct Scaling
{
    static constexpr int Dimensions = 3;

    /// For each locality (from 0) its place on each dimension; none for one that was left out.
    std::vector<std::vector<double>> places;
    /// The part of the variance of the distances that the first, the first two, the first three dimensions
    /// show: their squared correlation with the distances on the plot.
    std::array<double, Dimensions> variance{};
    /// Kruskal's stress of the first, the first two, the first three dimensions, from 0 (perfect) on.
    std::array<double, Dimensions> stress{};
};
