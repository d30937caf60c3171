#include "dialectometry/Linkage.h"

#include <algorithm>

namespace {

/// A tree as it is cut from its top down.
class CutTree
{
public:
    CutTree(const Linkage& tree, int localities)
        : m_tree(tree), m_groups(static_cast<std::size_t>(localities), 0)
    {
        for (const int locality : tree.localities) {
            m_groups[static_cast<std::size_t>(locality)] = 1;
        }
    }

    /// Parts the clusters of merge k.
    void part(int k, int newGroup)
    {
        const Merge& merge = m_tree.merges[static_cast<std::size_t>(k)];
        std::vector<int> first = members(merge.first);
        std::vector<int> second = members(merge.second);
        const bool secondIsSmaller =
            second.size() < first.size() || (second.size() == first.size() && second.front() > first.front());
        for (const int locality : secondIsSmaller ? second : first) {
            m_groups[static_cast<std::size_t>(locality)] = newGroup;
        }
    }

    const std::vector<int>& groups() const { return m_groups; }

private:
    /// The localities of a cluster in rising order.
    std::vector<int> members(int cluster) const
    {
        const auto leaves = static_cast<int>(m_tree.localities.size());
        std::vector<int> found;
        std::vector<int> open{cluster};
        while (!open.empty()) {
            const int next = open.back();
            open.pop_back();
            if (next < leaves) {
                found.push_back(m_tree.localities[static_cast<std::size_t>(next)]);
            } else {
                const Merge& merge = m_tree.merges[static_cast<std::size_t>(next - leaves)];
                open.insert(open.end(), {merge.first, merge.second});
            }
        }
        std::ranges::sort(found);
        return found;
    }

    const Linkage& m_tree;
    std::vector<int> m_groups;
};

} // namespace

std::vector<int> groupNumbers(const Linkage& tree, int groups, int localities)
{
    CutTree cut(tree, localities);
    const auto merges = static_cast<int>(tree.merges.size());
    for (int group = 2; group <= std::min(groups, merges + 1); ++group) {
        cut.part(merges - (group - 1), group);
    }
    return cut.groups();
}
