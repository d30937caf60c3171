#pragma once

#include "dialectometry/Distances.h"
#include "dialectometry/Linkage.h"

/// How clusters are made again and again with noise.
struct NoiseSettings
{
    /// The most that is added to a distance, as a part of the standard deviation of the distances.
    double noise = 0.5;
    int runs = 100;
    std::uint64_t seed = 1;

    bool operator==(const NoiseSettings&) const = default;
};

/// For each pair of localities the share, 0 to 1, of the runs in which they fall into different groups, when
/// each run adds random noise, evenly from 0 to the most, to each distance: a border that chance has made is
/// in few runs. Nerbonne, Kleiweg, Heeringa & Manni (2008), Projecting dialect distances to geography:
/// bootstrap clustering vs. noisy clustering. The same seed gives the same on every machine. No share for
/// localities that the tree leaves out; nothing where `goOn` returned false.
std::optional<DistanceMatrix> noisyBorders(const DistanceMatrix& distances, LinkageMethod method, int groups,
                                           const NoiseSettings& settings, const DistanceProgress& goOn);
