#include "dialectometry/CellLines.h"

#include "dialectometry/KeptStyle.h"

#include <algorithm>
#include <unordered_map>

namespace {

/// Puts borders end to end.
class LineJoiner
{
public:
    LineJoiner(const LocalityCells& cells, std::span<const int> classes, const MapGeometry& geometry)
        : m_borders(cells.borders), m_classes(classes), m_geometry(geometry), m_used(classes.size())
    {
        for (std::size_t i = 0; i < classes.size(); ++i) {
            if (classes[i] != NoLine) {
                m_meeting[m_borders[i].start].push_back(i);
                m_meeting[m_borders[i].end].push_back(i);
            }
        }
    }

    std::vector<CellLine> lines()
    {
        std::vector<CellLine> all;
        for (std::size_t i = 0; i < m_classes.size(); ++i) {
            if (m_classes[i] != NoLine && !m_used[i]) {
                all.push_back(lineThrough(i));
            }
        }
        return all;
    }

private:
    /// The line that holds border i: extended at its end, then at its start.
    CellLine lineThrough(std::size_t i)
    {
        m_used[i] = true;
        std::vector<QPointF> points = m_borders[i].points;
        extend(m_borders[i].end, m_classes[i], points);
        std::reverse(points.begin(), points.end());
        extend(m_borders[i].start, m_classes[i], points);
        for (QPointF& point : points) {
            point = {m_geometry.toScreen(static_cast<float>(point.x())),
                     m_geometry.toScreen(static_cast<float>(point.y()))};
        }
        return {m_classes[i], std::move(points)};
    }

    void extend(int end, int lineClass, std::vector<QPointF>& points)
    {
        for (;;) {
            const std::vector<std::size_t>& meeting = m_meeting[end];
            const auto next = std::ranges::find_if(
                meeting, [&](std::size_t i) { return !m_used[i] && m_classes[i] == lineClass; });
            if (meeting.size() != 2 || next == meeting.end()) {
                return;
            }
            const CellBorder& border = m_borders[*next];
            m_used[*next] = true;
            if (border.start == end) {
                points.insert(points.end(), border.points.begin() + 1, border.points.end());
                end = border.end;
            } else {
                points.insert(points.end(), border.points.rbegin() + 1, border.points.rend());
                end = border.start;
            }
        }
    }

    const std::vector<CellBorder>& m_borders;
    std::span<const int> m_classes;
    const MapGeometry& m_geometry;
    std::vector<bool> m_used;
    /// The drawn borders that begin or end at a point.
    std::unordered_map<int, std::vector<std::size_t>> m_meeting;
};

} // namespace

std::vector<CellLine> cellLines(const LocalityCells& cells, std::span<const int> classes,
                                const MapGeometry& geometry)
{
    return LineJoiner(cells, classes, geometry).lines();
}

std::vector<int> bordersBetween(const LocalityCells& cells, std::span<const int> kinds)
{
    std::vector<int> classes;
    for (const CellBorder& border : cells.borders) {
        const bool inside = border.left != CellBorder::Outside && border.right != CellBorder::Outside;
        const bool differ = inside && kinds[static_cast<std::size_t>(border.left)] !=
                                          kinds[static_cast<std::size_t>(border.right)];
        classes.push_back(differ ? 0 : NoLine);
    }
    return classes;
}

void drawCellLines(const std::vector<CellLine>& lines, std::span<const LinePen> pens, DrawSurface& target)
{
    const KeptStyle kept(target);
    for (std::size_t i = 0; i < pens.size(); ++i) {
        target.DrawWidth = pens[i].width;
        target.DrawStyle = pens[i].style;
        for (const CellLine& line : lines) {
            if (line.lineClass == static_cast<int>(i)) {
                drawLine(line.points, pens[i].color, target);
            }
        }
    }
}
