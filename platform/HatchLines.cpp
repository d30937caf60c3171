#include "platform/HatchLines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double LineWidth = TwipsPerPixel;
constexpr double DotWidth = 40;
constexpr double Apart = 130;
constexpr double DenseApart = 65;
/// More lines than a page can show; an area so large would take for ever.
constexpr double MostLines = 20000;
/// Lines are counted from the corner of the drawing; no number of one on a page is as high.
constexpr double Furthest = 1e12;

bool isDense(FillPattern pattern)
{
    return pattern >= FillPattern::DenseHorizontal;
}

/// The pattern whose lines are as far apart as those of the first ones.
FillPattern shapeOf(FillPattern pattern)
{
    constexpr int Shapes =
        static_cast<int>(FillPattern::DenseHorizontal) - static_cast<int>(FillPattern::Horizontal);
    return isDense(pattern) ? static_cast<FillPattern>(static_cast<int>(pattern) - Shapes) : pattern;
}

/// The directions of a pattern's lines, counter-clockwise from the right, in eighths of a turn.
std::vector<int> directions(FillPattern pattern)
{
    switch (shapeOf(pattern)) {
    case FillPattern::Rising:
        return {1};
    case FillPattern::Vertical:
        return {2};
    case FillPattern::Falling:
        return {3};
    case FillPattern::Cross:
        return {0, 2};
    case FillPattern::DiagonalCross:
        return {1, 3};
    default:
        return {0};
    }
}

/// The unit vector of a direction.
QPointF along(int eighths)
{
    static constexpr double Diagonal = std::numbers::sqrt2 / 2;
    static const std::array<QPointF, 4> Vectors = {
        {{1, 0}, {Diagonal, -Diagonal}, {0, -1}, {-Diagonal, -Diagonal}}};
    return Vectors.at(static_cast<std::size_t>(eighths));
}

/// A place where a line of the pattern meets an outline: the number of the line, and how far along it.
struct Crossing
{
    long long line;
    double place;

    bool operator<(const Crossing& other) const
    {
        return line != other.line ? line < other.line : place < other.place;
    }
};

/// Finds where lines of one direction lie inside of an area.
class HatchFinder
{
public:
    HatchFinder(int eighths, double apart)
        : m_along(along(eighths)), m_across(-m_along.y(), m_along.x()), m_apart(apart)
    {}

    void addRing(std::span<const QPointF> ring)
    {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            addEdge(ring[i], ring[(i + 1) % ring.size()]);
        }
    }

    /// Calls `found` with the number of a line and the two places along it between which it lies inside.
    template <typename Found>
    void eachPiece(Found found)
    {
        std::sort(m_crossings.begin(), m_crossings.end());
        for (std::size_t i = 0; i + 1 < m_crossings.size(); i += 2) {
            found(m_crossings[i].line, m_crossings[i].place, m_crossings[i + 1].place);
        }
    }

    QPointF at(long long line, double place) const
    {
        return m_along * place + m_across * (static_cast<double>(line) * m_apart);
    }

private:
    /// Each line that passes between the ends of an edge meets it; of its ends the nearer one belongs to it,
    /// so that every line meets a ring an even number of times.
    void addEdge(QPointF a, QPointF b)
    {
        const double fromA = QPointF::dotProduct(a, m_across) / m_apart;
        const double fromB = QPointF::dotProduct(b, m_across) / m_apart;
        const double first = std::ceil(std::min(fromA, fromB));
        const double end = std::ceil(std::max(fromA, fromB));
        if (!(std::abs(first) <= Furthest && end - first <= MostLines)) {
            return;
        }
        for (auto line = static_cast<long long>(first); line < static_cast<long long>(end); ++line) {
            const QPointF place = a + (b - a) * ((static_cast<double>(line) - fromA) / (fromB - fromA));
            m_crossings.push_back({line, QPointF::dotProduct(place, m_along)});
        }
    }

    QPointF m_along;
    QPointF m_across;
    double m_apart;
    std::vector<Crossing> m_crossings;
};

/// The dots between two places of a line; those of every other line lie between those of the last.
void addDots(const HatchFinder& finder, long long line, double from, double to, double apart,
             std::vector<QLineF>& lines)
{
    constexpr double Shortest = 1;

    const double shift = line % 2 == 0 ? 0 : 0.5;
    const double first = std::ceil(from / apart - shift);
    const double last = std::min(std::floor(to / apart - shift), first + MostLines);
    const auto dots = static_cast<int>(last - first) + 1;
    for (int i = 0; i < dots; ++i) {
        const double place = (first + i + shift) * apart;
        lines.emplace_back(finder.at(line, place), finder.at(line, place + Shortest));
    }
}

} // namespace

HatchPen hatchPen(FillPattern pattern)
{
    const bool dots = shapeOf(pattern) == FillPattern::Dots;
    return {dots ? DotWidth : LineWidth, dots};
}

std::vector<QLineF> hatchLines(const std::vector<QPointF>& points, std::span<const PointRange> rings,
                               FillPattern pattern)
{
    const bool dots = hatchPen(pattern).dots;
    const double apart = isDense(pattern) ? DenseApart : Apart;
    std::vector<QLineF> lines;
    for (const int eighths : directions(pattern)) {
        HatchFinder finder(eighths, apart);
        for (const PointRange& ring : rings) {
            finder.addRing(std::span(points).subspan(ring.first, ring.count));
        }
        finder.eachPiece([&](long long line, double from, double to) {
            if (dots) {
                addDots(finder, line, from, to, apart, lines);
            } else {
                lines.emplace_back(finder.at(line, from), finder.at(line, to));
            }
        });
    }
    return lines;
}
