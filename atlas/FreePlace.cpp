#include "atlas/FreePlace.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

namespace {

/// The rectangle in which the top left corner may lie so that the legend stays on the paper.
QRectF corners(const QRectF& paper, QSizeF size)
{
    return {paper.topLeft(), QSizeF(std::max(0.0, paper.width() - size.width()),
                                    std::max(0.0, paper.height() - size.height()))};
}

double fromNearestCorner(const QRectF& area, QPointF place)
{
    const double across = std::min(place.x() - area.left(), area.right() - place.x());
    const double down = std::min(place.y() - area.top(), area.bottom() - place.y());
    return std::hypot(across, down);
}

std::ptrdiff_t countIn(const QRectF& area, const std::vector<QPointF>& points)
{
    return std::ranges::count_if(points, [&](QPointF point) { return area.contains(point); });
}

/// The places that are tried, in rows.
std::vector<QPointF> placesIn(const QRectF& area)
{
    constexpr int Steps = 40;

    std::vector<QPointF> places;
    for (int row = 0; row < Steps; ++row) {
        for (int column = 0; column < Steps; ++column) {
            places.emplace_back(area.left() + area.width() * column / (Steps - 1),
                                area.top() + area.height() * row / (Steps - 1));
        }
    }
    return places;
}

/// Points along the lines of some operations, and the corners of their texts.
class PointFinder
{
public:
    explicit PointFinder(const Drawing& drawing) : m_drawing(drawing) {}

    void operator()(const PolylineOperation& line)
    {
        constexpr double Apart = 150;
        constexpr double MostParts = 1000;

        for (std::size_t i = line.firstPoint; i + 1 < line.firstPoint + line.points; ++i) {
            const QLineF piece(m_drawing.points[i], m_drawing.points[i + 1]);
            const int parts = static_cast<int>(std::clamp(piece.length() / Apart + 1, 1.0, MostParts));
            for (int part = 0; part <= parts; ++part) {
                points.push_back(piece.pointAt(static_cast<double>(part) / parts));
            }
        }
    }
    void operator()(const TextOperation& text) { points.emplace_back(text.x, text.y); }
    void operator()(const auto& /*other*/) {}

    std::vector<QPointF> points;

private:
    const Drawing& m_drawing;
};

} // namespace

std::vector<QPointF> pointsOf(const Drawing& drawing, std::size_t first, std::size_t end)
{
    PointFinder finder(drawing);
    for (std::size_t i = first; i < end; ++i) {
        std::visit(finder, drawing.operations[i]);
    }
    return std::move(finder.points);
}

QPointF freePlace(const QRectF& paper, QSizeF size, const Obstacles& obstacles)
{
    constexpr auto Most = std::numeric_limits<std::ptrdiff_t>::max();

    const QRectF area = corners(paper, size);
    QPointF best = area.topLeft();
    std::tuple least(Most, Most, 0.0);
    for (const QPointF place : placesIn(area)) {
        const QRectF covered(place, size);
        const double room = obstacles.room;
        const auto localities = countIn(covered.adjusted(-room, -room, room, room), obstacles.localities);
        if (localities <= std::get<0>(least)) {
            const std::tuple cost(localities, countIn(covered, obstacles.others),
                                  fromNearestCorner(area, place));
            best = cost < least ? place : best;
            least = std::min(least, cost);
        }
    }
    return best;
}
