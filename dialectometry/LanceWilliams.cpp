#include "dialectometry/CompleteDistances.h"
#include "dialectometry/Linkage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

constexpr double NoCluster = std::numeric_limits<double>::infinity();

/// Two clusters, their distance, and how many localities are in each.
struct JoinedPair
{
    double distance;
    double firstSize;
    double secondSize;
};

/// The distance of a cluster of `size`, at `first` and `second` from the two, to the joined cluster.
double joinedDistance(LinkageMethod method, const JoinedPair& pair, double first, double second, double size)
{
    const double both = pair.firstSize + pair.secondSize;
    switch (method) {
    case LinkageMethod::Single:
        return std::min(first, second);
    case LinkageMethod::Complete:
        return std::max(first, second);
    case LinkageMethod::Average:
        return (pair.firstSize * first + pair.secondSize * second) / both;
    case LinkageMethod::Weighted:
        return (first + second) / 2;
    case LinkageMethod::Ward:
        break;
    }
    const double share = 1 / (both + size);
    return std::sqrt((size + pair.firstSize) * share * first * first +
                     (size + pair.secondSize) * share * second * second -
                     size * share * pair.distance * pair.distance);
}

/// Clusters by chains of nearest neighbours: each chain goes from a cluster to its nearest until two are each
/// other's nearest, which are joined. With all five methods no joining brings a cluster nearer than the
/// joined ones were, so the rest of the chain stays one: Murtagh (1983), A survey of recent advances in
/// hierarchical clustering algorithms. Quadratic in the localities.
class Chains
{
public:
    Chains(const DistanceMatrix& distances, const std::vector<int>& localities, LinkageMethod method)
        : m_method(method), m_count(localities.size()), m_sizes(m_count, 1),
          m_distances(m_count * m_count, NoCluster)
    {
        for (std::size_t i = 0; i < m_count; ++i) {
            for (std::size_t j = 0; j < m_count; ++j) {
                if (i != j) {
                    at(i, j) = distances(localities[i], localities[j]);
                }
            }
        }
    }

    /// The merges by slots: a joined cluster has the slot of its second part.
    std::vector<Merge> merges()
    {
        std::vector<Merge> merges;
        while (merges.size() + 1 < m_count) {
            merges.push_back(nextMerge());
        }
        return merges;
    }

private:
    double& at(std::size_t a, std::size_t b) { return m_distances[a * m_count + b]; }

    std::size_t firstCluster() const
    {
        const auto first = std::ranges::find_if(m_sizes, [](int size) { return size > 0; });
        return static_cast<std::size_t>(first - m_sizes.begin());
    }

    /// The cluster that is nearest to the last of the chain.
    std::size_t nearestToLast()
    {
        const double* row = &at(m_chain.back(), 0);
        const double* nearest = std::min_element(row, row + m_count);
        const bool hasBefore = m_chain.size() > 1;
        if (hasBefore && row[m_chain[m_chain.size() - 2]] <= *nearest) {
            return m_chain[m_chain.size() - 2];
        }
        return static_cast<std::size_t>(nearest - row);
    }

    Merge nextMerge()
    {
        if (m_chain.empty()) {
            m_chain.push_back(firstCluster());
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
        const int size = m_sizes[first] + m_sizes[second];
        m_sizes[first] = 0;
        m_sizes[second] = size;
        for (std::size_t i = 0; i < m_count; ++i) {
            if (m_sizes[i] > 0 && i != second) {
                const double distance =
                    joinedDistance(m_method, pair, at(first, i), at(second, i), m_sizes[i]);
                at(i, second) = at(second, i) = distance;
            }
            at(i, first) = NoCluster;
        }
        return {static_cast<int>(first), static_cast<int>(second), pair.distance, size};
    }

    LinkageMethod m_method;
    std::size_t m_count;
    /// How many localities the cluster of each slot has; 0 in a slot that was joined to another.
    std::vector<int> m_sizes;
    std::vector<double> m_distances;
    std::vector<std::size_t> m_chain;
};

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
        tree.merges = Chains(distances, tree.localities, method).merges();
        numberClusters(tree.merges);
    }
    return tree;
}

std::vector<int> leftOut(const Linkage& tree, int localities)
{
    std::vector<int> all(static_cast<std::size_t>(localities));
    std::iota(all.begin(), all.end(), 0);
    std::vector<int> out;
    std::ranges::set_difference(all, tree.localities, std::back_inserter(out));
    return out;
}
