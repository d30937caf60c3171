#include "atlas/FreePlace.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr int Steps = 40;

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

} // namespace

QPointF freePlace(const QRectF& paper, QSizeF size, const std::vector<QPointF>& spots, double room)
{
    const QRectF area = corners(paper, size);
    QPointF best = area.topLeft();
    auto least = std::pair(std::numeric_limits<std::ptrdiff_t>::max(), 0.0);
    for (int step = 0; step < Steps * Steps; ++step) {
        const int row = step / Steps;
        const QPointF place(area.left() + area.width() * (step % Steps) / (Steps - 1),
                            area.top() + area.height() * row / (Steps - 1));
        const QRectF covered = QRectF(place, size).adjusted(-room, -room, room, room);
        const auto hidden =
            std::ranges::count_if(spots, [&](QPointF spot) { return covered.contains(spot); });
        const auto cost = std::pair(hidden, fromNearestCorner(area, place));
        if (cost < least) {
            least = cost;
            best = place;
        }
    }
    return best;
}
