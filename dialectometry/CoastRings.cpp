#include "dialectometry/CoastRings.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// A line of the map, and where in the list it stands.
struct MapLine
{
    int number = 0;
    Ring points;
};

QPointF pointOf(const MapLines& map, int i, int j)
{
    return {map.LineXY(i, j, 0) + map.LineOffset(i, 0), map.LineXY(i, j, 1) + map.LineOffset(i, 1)};
}

std::vector<MapLine> linesOf(const MapLines& map)
{
    std::vector<MapLine> lines;
    for (int i = 1; i <= map.NLine; ++i) {
        MapLine line{i, {}};
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            line.points.push_back(pointOf(map, i, j));
        }
        if (line.points.size() >= 2) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

QRectF boxAround(const Ring& points)
{
    return QPolygonF(QList<QPointF>(points.begin(), points.end())).boundingRect();
}

/// Points of a map no further apart than this are one.
double toleranceOf(const std::vector<MapLine>& lines)
{
    constexpr double Share = 1e-4;

    QRectF box;
    for (const MapLine& line : lines) {
        box |= boxAround(line.points);
    }
    return Share * std::max(box.width(), box.height());
}

bool areAlike(const MapLines& map, const MapLine& a, const MapLine& b)
{
    return map.LineKind(a.number) == map.LineKind(b.number) &&
           map.MapLineColor(a.number) == map.MapLineColor(b.number) &&
           map.LineStyle(a.number) == map.LineStyle(b.number);
}

/// Puts pieces of lines together, end to end.
class LineJoiner
{
public:
    explicit LineJoiner(const MapLines& map)
        : m_map(map), m_lines(linesOf(map)), m_tolerance(toleranceOf(m_lines))
    {}

    JoinedLines join()
    {
        JoinedLines joined;
        while (!m_lines.empty()) {
            MapLine line = std::move(m_lines.back());
            m_lines.pop_back();
            extendWhole(line);
            if (isClosed(line.points)) {
                line.points.pop_back();
                joined.closed.push_back(std::move(line.points));
            } else {
                joined.open.push_back(std::move(line.points));
            }
        }
        return joined;
    }

private:
    bool isClosed(const Ring& points) const
    {
        constexpr std::size_t FewestPoints = 4; // a triangle, its first point repeated
        return points.size() >= FewestPoints && QLineF(points.front(), points.back()).length() <= m_tolerance;
    }

    /// Adds pieces at both ends until the line closes or there is no more.
    void extendWhole(MapLine& line)
    {
        for (int end = 0; end < 2; ++end) {
            while (!isClosed(line.points) && extend(line)) {
            }
            if (!isClosed(line.points)) {
                std::reverse(line.points.begin(), line.points.end());
            }
        }
    }

    /// Adds a piece that begins or ends where `line` ends; returns whether there was one.
    bool extend(MapLine& line)
    {
        const QPointF end = line.points.back();
        for (auto piece = m_lines.begin(); piece != m_lines.end(); ++piece) {
            if (!areAlike(m_map, line, *piece) || isClosed(piece->points)) {
                continue;
            }
            if (QLineF(piece->points.back(), end).length() <= m_tolerance) {
                std::reverse(piece->points.begin(), piece->points.end());
            }
            if (QLineF(piece->points.front(), end).length() <= m_tolerance) {
                line.points.insert(line.points.end(), piece->points.begin() + 1, piece->points.end());
                m_lines.erase(piece);
                return true;
            }
        }
        return false;
    }

    const MapLines& m_map;
    std::vector<MapLine> m_lines;
    double m_tolerance;
};

bool isRectangle(const Ring& ring)
{
    constexpr double Filled = 0.97;

    const QRectF box = boxAround(ring);
    return std::abs(signedArea(ring)) >= Filled * box.width() * box.height();
}

/// The number of the first ring, in rising order of areas, that holds `place`.
std::optional<std::size_t> smallestAround(QPointF place, const std::vector<Ring>& rings)
{
    const auto found =
        std::find_if(rings.begin(), rings.end(), [place](const Ring& ring) { return holds(ring, place); });
    return found == rings.end() ? std::nullopt : std::optional<std::size_t>(found - rings.begin());
}

} // namespace

JoinedLines joinedLines(const MapLines& lines)
{
    JoinedLines joined = LineJoiner(lines).join();
    std::erase_if(joined.closed, isRectangle);
    return joined;
}

std::vector<Ring> coastsAround(std::span<const QPointF> places, const std::vector<Ring>& rings)
{
    constexpr std::ptrdiff_t OneIn = 10;

    std::vector<Ring> sorted = rings;
    std::sort(sorted.begin(), sorted.end(),
              [](const Ring& a, const Ring& b) { return std::abs(signedArea(a)) < std::abs(signedArea(b)); });
    std::vector<std::ptrdiff_t> own(sorted.size());
    for (const QPointF place : places) {
        if (const auto ring = smallestAround(place, sorted)) {
            ++own[*ring];
        }
    }
    std::vector<Ring> coasts;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const auto held =
            std::ranges::count_if(places, [&](QPointF place) { return holds(sorted[i], place); });
        if (own[i] > 0 && OneIn * own[i] > held) {
            coasts.push_back(sorted[i]);
        }
    }
    return coasts;
}

bool holds(const Ring& ring, QPointF point)
{
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i];
        const QPointF b = ring[(i + 1) % ring.size()];
        if ((a.y() > point.y()) != (b.y() > point.y()) &&
            point.x() < a.x() + (b.x() - a.x()) * (point.y() - a.y()) / (b.y() - a.y())) {
            inside = !inside;
        }
    }
    return inside;
}

double signedArea(const Ring& ring)
{
    double twice = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i];
        const QPointF b = ring[(i + 1) % ring.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return twice / 2;
}
