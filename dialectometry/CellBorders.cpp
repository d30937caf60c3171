#include "dialectometry/CellBorders.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <span>
#include <unordered_map>

namespace {

/// The points of all cells by number; those in one square of a fine grid are one.
class PointNumbers
{
public:
    explicit PointNumbers(double extent) : m_grid(extent > 0 ? extent * Fineness : Fineness) {}

    int operator()(QPointF point)
    {
        const auto [known, isNew] = m_numbers.try_emplace(key(point), static_cast<int>(m_points.size()));
        if (isNew) {
            m_points.push_back(point);
        }
        return known->second;
    }

    QPointF at(int number) const { return m_points[static_cast<std::size_t>(number)]; }

private:
    static constexpr double Fineness = 1e-7;

    /// Of the number of a square its last 32 bits, which tell the squares of one map apart: it is 10^7 wide.
    std::uint64_t key(QPointF point) const
    {
        const auto half = [this](double value) {
            return static_cast<std::uint64_t>(std::llround(value / m_grid)) & 0xFFFFFFFFU;
        };
        return half(point.x()) << 32U | half(point.y());
    }

    double m_grid;
    std::unordered_map<std::uint64_t, int> m_numbers;
    std::vector<QPointF> m_points;
};

/// The outline of a part of a cell, or of a hole in it, as numbers of points; the cell lies on its left.
struct Outline
{
    int cell;
    std::vector<int> points;
};

std::uint64_t edge(int from, int to)
{
    return static_cast<std::uint64_t>(from) << 32U | static_cast<std::uint64_t>(to);
}

/// Makes borders of outlines.
class BorderFinder
{
public:
    BorderFinder(const std::vector<std::vector<CellPolygon>>& cells, double extent) : m_numbers(extent)
    {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            for (const CellPolygon& polygon : cells[i]) {
                for (const Ring& ring : polygon) {
                    addOutline(static_cast<int>(i), ring);
                }
            }
        }
    }

    std::vector<CellBorder> borders()
    {
        for (const Outline& outline : m_outlines) {
            addBorders(outline);
        }
        return std::move(m_borders);
    }

private:
    void addOutline(int cell, const Ring& ring)
    {
        Outline outline{cell, {}};
        for (const QPointF point : ring) {
            const int number = m_numbers(point);
            if (outline.points.empty() || outline.points.back() != number) {
                outline.points.push_back(number);
            }
        }
        while (outline.points.size() > 1 && outline.points.front() == outline.points.back()) {
            outline.points.pop_back();
        }
        if (outline.points.size() < 3) {
            return;
        }
        for (std::size_t i = 0; i < outline.points.size(); ++i) {
            m_cellOnLeft[edge(outline.points[i], next(outline, i))] = cell;
        }
        m_outlines.push_back(std::move(outline));
    }

    static int next(const Outline& outline, std::size_t i)
    {
        return outline.points[(i + 1) % outline.points.size()];
    }

    /// The cell on the right of the outline behind its point i.
    int cellOnRight(const Outline& outline, std::size_t i) const
    {
        const auto found = m_cellOnLeft.find(edge(next(outline, i), outline.points[i]));
        return found == m_cellOnLeft.end() ? CellBorder::Outside : found->second;
    }

    /// Parts an outline where the cell on its right changes.
    void addBorders(const Outline& outline)
    {
        std::vector<int> right;
        for (std::size_t i = 0; i < outline.points.size(); ++i) {
            right.push_back(cellOnRight(outline, i));
        }
        const auto change = std::ranges::adjacent_find(right, std::ranges::not_equal_to());
        const auto begin = change == right.end() ? 0 : change + 1 - right.begin();
        std::rotate(right.begin(), right.begin() + begin, right.end());
        std::vector<int> points = outline.points;
        std::rotate(points.begin(), points.begin() + begin, points.end());
        points.push_back(points.front());
        for (std::size_t first = 0; first < right.size();) {
            std::size_t last = first;
            while (last < right.size() && right[last] == right[first]) {
                ++last;
            }
            addBorder(outline.cell, right[first], std::span(points).subspan(first, last - first + 1));
            first = last;
        }
    }

    /// Of a border between two cells, one cell tells.
    void addBorder(int left, int right, std::span<const int> line)
    {
        if (right != CellBorder::Outside && right <= left) {
            return;
        }
        CellBorder border{left, right, {}, line.front(), line.back()};
        for (const int number : line) {
            border.points.push_back(m_numbers.at(number));
        }
        m_borders.push_back(std::move(border));
    }

    PointNumbers m_numbers;
    std::vector<Outline> m_outlines;
    std::unordered_map<std::uint64_t, int> m_cellOnLeft;
    std::vector<CellBorder> m_borders;
};

} // namespace

std::vector<CellBorder> bordersOf(const std::vector<std::vector<CellPolygon>>& cells, double extent)
{
    return BorderFinder(cells, extent).borders();
}
