#include "dialectometry/LocalityCells.h"

#include <algorithm>
#include <unordered_map>

namespace {

/// A border as the outline of a group runs along it, the group on its left.
struct Step
{
    const CellBorder* border;
    bool backward;

    int start() const { return backward ? border->end : border->start; }
    int end() const { return backward ? border->start : border->end; }
};

/// Puts the borders around a group together to closed lines.
class OutlineJoiner
{
public:
    void add(const Step& step) { m_steps.emplace(step.start(), step); }

    Rings rings()
    {
        Rings all;
        while (!m_steps.empty()) {
            all.push_back(ringFrom(m_steps.begin()->first));
        }
        return all;
    }

private:
    Ring ringFrom(int start)
    {
        Ring ring;
        int at = start;
        do {
            const auto found = m_steps.find(at);
            if (found == m_steps.end()) {
                break;
            }
            const Step step = found->second;
            m_steps.erase(found);
            append(step, ring);
            at = step.end();
        } while (at != start);
        return ring;
    }

    /// The last point of a step is the first one of the next.
    static void append(const Step& step, Ring& ring)
    {
        const std::vector<QPointF>& points = step.border->points;
        if (step.backward) {
            ring.insert(ring.end(), points.rbegin(), points.rend() - 1);
        } else {
            ring.insert(ring.end(), points.begin(), points.end() - 1);
        }
    }

    std::unordered_multimap<int, Step> m_steps;
};

} // namespace

std::vector<Rings> joinedCells(const LocalityCells& cells, std::span<const int> groups, int count)
{
    const auto groupOf = [&groups](int cell) {
        return cell == CellBorder::Outside ? -1 : groups[static_cast<std::size_t>(cell)];
    };
    std::vector<OutlineJoiner> joiners(static_cast<std::size_t>(std::max(count, 0)));
    for (const CellBorder& border : cells.borders) {
        const int left = groupOf(border.left);
        const int right = groupOf(border.right);
        if (left >= 0 && left != right) {
            joiners[static_cast<std::size_t>(left)].add({&border, false});
        }
        if (right >= 0 && left != right) {
            joiners[static_cast<std::size_t>(right)].add({&border, true});
        }
    }
    std::vector<Rings> joined;
    joined.reserve(joiners.size());
    for (OutlineJoiner& joiner : joiners) {
        joined.push_back(joiner.rings());
    }
    return joined;
}
