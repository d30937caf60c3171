#include "dialectometry/CompleteDistances.h"
#include "dialectometry/Linkage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

/// Two clusters, their distance, and how many localities are in each.
struct JoinedPair
{
    double distance;
    double firstSize;
    double secondSize;
};

/// By the formula: the distance of a cluster of `size`, at `first` and `second` from the two, to the joined
/// one.
double formulaDistance(LinkageMethod method, const JoinedPair& pair, double first, double second, double size)
{
    const double both = pair.firstSize + pair.secondSize;
    switch (method) {
    case LinkageMethod::Complete:
        return std::max(first, second);
    case LinkageMethod::Average:
        return (pair.firstSize * first + pair.secondSize * second) / both;
    case LinkageMethod::Weighted:
        return (first + second) / 2;
    case LinkageMethod::Single: // has a way of its own
    case LinkageMethod::Ward:
        break;
    }
    const double share = 1 / (both + size);
    return std::sqrt((size + pair.firstSize) * share * first * first +
                     (size + pair.secondSize) * share * second * second -
                     size * share * pair.distance * pair.distance);
}

/// No joining brings a cluster nearer than the nearer part was, and rounding must not either: a chain of
/// nearest neighbours would come back to itself.
double joinedDistance(LinkageMethod method, const JoinedPair& pair, double first, double second, double size)
{
    return std::max(formulaDistance(method, pair, first, second, size), std::min(first, second));
}

/// Clusters by chains of nearest neighbours: each chain goes from a cluster to its nearest until two are each
/// other's nearest, which are joined. With all methods no joining brings a cluster nearer than the
/// joined ones were, so the rest of the chain stays one: Murtagh (1983), A survey of recent advances in
/// hierarchical clustering algorithms. Quadratic in the localities.
class Chains
{
public:
    Chains(const DistanceMatrix& distances, const std::vector<int>& localities, LinkageMethod method)
        : m_method(method), m_count(localities.size()), m_sizes(m_count, 1), m_clusters(m_count),
          m_distances(m_count * m_count)
    {
        std::iota(m_clusters.begin(), m_clusters.end(), 0);
        for (std::size_t i = 0; i < m_count; ++i) {
            for (std::size_t j = i + 1; j < m_count; ++j) {
                at(i, j) = at(j, i) = distances(localities[i], localities[j]);
            }
        }
    }

    /// The merges by slots: a joined cluster has the slot of its second part.
    std::vector<Merge> merges()
    {
        std::vector<Merge> merges;
        while (m_clusters.size() > 1) {
            merges.push_back(nextMerge());
        }
        return merges;
    }

private:
    double& at(std::size_t a, std::size_t b) { return m_distances[a * m_count + b]; }

    /// The cluster that is nearest to the last of the chain.
    std::size_t nearestToLast()
    {
        const std::size_t last = m_chain.back();
        const bool hasBefore = m_chain.size() > 1;
        std::size_t nearest = hasBefore ? m_chain[m_chain.size() - 2] : last;
        double least = hasBefore ? at(last, nearest) : std::numeric_limits<double>::infinity();
        const double* row = &at(last, 0);
        for (const std::size_t cluster : m_clusters) {
            if (row[cluster] < least && cluster != last) {
                least = row[cluster];
                nearest = cluster;
            }
        }
        return nearest;
    }

    Merge nextMerge()
    {
        if (m_chain.empty()) {
            m_chain.push_back(m_clusters.front());
        }
        while (true) {
            const std::size_t next = nearestToLast();
            if (m_chain.size() > 1 && next == m_chain[m_chain.size() - 2]) {
                break;
            }
            m_chain.push_back(next);
        }
        const std::size_t last = m_chain.back();
        const std::size_t before = m_chain[m_chain.size() - 2];
        m_chain.resize(m_chain.size() - 2);
        return join(std::min(last, before), std::max(last, before));
    }

    Merge join(std::size_t first, std::size_t second)
    {
        const JoinedPair pair{at(first, second), static_cast<double>(m_sizes[first]),
                              static_cast<double>(m_sizes[second])};
        m_clusters.erase(std::ranges::lower_bound(m_clusters, first));
        m_sizes[second] += m_sizes[first];
        for (const std::size_t i : m_clusters) {
            if (i != second) {
                at(second, i) = joinedDistance(m_method, pair, at(first, i), at(second, i), m_sizes[i]);
                at(i, second) = at(second, i);
            }
        }
        return {static_cast<int>(first), static_cast<int>(second), pair.distance, m_sizes[second]};
    }

    LinkageMethod m_method;
    std::size_t m_count;
    /// How many localities the cluster of each slot has.
    std::vector<int> m_sizes;
    /// The slots of the clusters that are not in another, in rising order.
    std::vector<std::size_t> m_clusters;
    std::vector<double> m_distances;
    std::vector<std::size_t> m_chain;
};

/// The merges of single linkage, each of two localities of the clusters: the tree of least length grows from
/// the first locality by the nearest one that is not in it (Prim 1957; Gower & Ross 1969, Minimum spanning
/// trees and single linkage cluster analysis). The locality that came last stands for the tree, for in the
/// order of heights it is in the same cluster as the one that is nearest.
std::vector<Merge> spanningTree(const DistanceMatrix& distances, const std::vector<int>& localities)
{
    struct Outside
    {
        int number;
        double distance; // to the nearest of the tree
    };
    std::vector<Outside> outside;
    for (int i = 1; i < static_cast<int>(localities.size()); ++i) {
        outside.push_back({i, std::numeric_limits<double>::infinity()});
    }
    std::vector<Merge> merges;
    int last = 0;
    while (!outside.empty()) {
        auto nearest = outside.begin();
        for (auto locality = outside.begin(); locality != outside.end(); ++locality) {
            locality->distance = std::min(locality->distance,
                                          distances(localities[static_cast<std::size_t>(last)],
                                                    localities[static_cast<std::size_t>(locality->number)]));
            if (locality->distance < nearest->distance) {
                nearest = locality;
            }
        }
        merges.push_back({last, nearest->number, nearest->distance, 0});
        last = nearest->number;
        outside.erase(nearest);
    }
    return merges;
}

/// Sorts merges by height and names clusters by their numbers instead of the slots.
void numberClusters(std::vector<Merge>& merges)
{
    std::ranges::stable_sort(merges, {}, &Merge::height);
    const auto leaves = static_cast<int>(merges.size()) + 1;
    std::vector<int> parents(static_cast<std::size_t>(2 * leaves - 1));
    std::iota(parents.begin(), parents.end(), 0);
    const auto clusterOf = [&](int slot) {
        while (parents[static_cast<std::size_t>(slot)] != slot) {
            int& parent = parents[static_cast<std::size_t>(slot)];
            parent = parents[static_cast<std::size_t>(parent)];
            slot = parent;
        }
        return slot;
    };
    std::vector<int> sizes(parents.size(), 1);
    int next = leaves;
    for (Merge& merge : merges) {
        const auto [first, second] = std::minmax({clusterOf(merge.first), clusterOf(merge.second)});
        merge.first = first;
        merge.second = second;
        merge.size = sizes[static_cast<std::size_t>(first)] + sizes[static_cast<std::size_t>(second)];
        sizes[static_cast<std::size_t>(next)] = merge.size;
        parents[static_cast<std::size_t>(first)] = parents[static_cast<std::size_t>(second)] = next++;
    }
}

} // namespace

Linkage linkage(const DistanceMatrix& distances, LinkageMethod method)
{
    Linkage tree{completeLocalities(distances), {}};
    if (!tree.localities.empty()) {
        tree.merges = method == LinkageMethod::Single ? spanningTree(distances, tree.localities)
                                                      : Chains(distances, tree.localities, method).merges();
        numberClusters(tree.merges);
    }
    return tree;
}
