#pragma once

#include "dialectometry/DistanceMatrix.h"

#include <cstdint>
#include <vector>

/// How the distance to a joined cluster follows from those to its parts.
enum class LinkageMethod : std::uint8_t { Single, Complete, Average, Weighted, Ward };

/// Two clusters that are joined. The clusters of one locality each have the numbers 0 to n - 1 of `Linkage`'s
/// localities; joining number k (from 0) makes cluster n + k.
struct Merge
{
    int first = 0;
    int second = 0;
    double height = 0;
    /// How many localities the new cluster has.
    int size = 0;
};

/// A tree of clusters, from the lowest joining to the highest.
struct Linkage
{
    /// The localities (from 0) that are in the tree: n of them, in rising order.
    std::vector<int> localities;
    std::vector<Merge> merges;
};

/// Joins clusters by the formula of Lance & Williams (1967), A general theory of classificatory sorting
/// strategies; with Ward (1963) heights are in the unit of the distances, which count as Euclidean.
/// Localities that `completeLocalities` leaves out are not in the tree. In a merge `first` is less than
/// `second`. Equal heights are joined in a fixed order, which begins at the first locality.
Linkage linkage(const DistanceMatrix& distances, LinkageMethod method);

/// The number (from 1) of each locality's group when the tree is cut into `groups`; 0 of a locality that is
/// not in the tree. The numbers stay when there is one group more: of the group that parts the larger half
/// (of two alike the one with the first locality) keeps its number, the other gets the new one. With more
/// groups than localities each is a group.
std::vector<int> groupNumbers(const Linkage& tree, int groups, int localities);
