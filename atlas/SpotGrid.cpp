#include "atlas/SpotGrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

QRectF extentOf(const std::vector<MapSpot>& spots)
{
    if (spots.empty()) {
        return {};
    }
    const auto [left, right] =
        std::ranges::minmax(spots, {}, [](const MapSpot& spot) { return spot.place.x(); });
    const auto [top, bottom] =
        std::ranges::minmax(spots, {}, [](const MapSpot& spot) { return spot.place.y(); });
    return {QPointF(left.place.x(), top.place.y()), QPointF(right.place.x(), bottom.place.y())};
}

/// The number of the cell that `offset` falls into where `side` cells share `length`.
int cellOf(double offset, double length, int side)
{
    const double share = length > 0 ? offset / length : 0;
    return static_cast<int>(std::clamp(share * side, 0.0, side - 1.0));
}

double squaredDistance(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a - b, a - b);
}

} // namespace

SpotGrid::SpotGrid(std::vector<MapSpot> spots)
    : m_extent(extentOf(spots)),
      m_side(std::max(1, static_cast<int>(std::sqrt(static_cast<double>(spots.size())))))
{
    const auto cellOfSpot = [this](const MapSpot& spot) {
        return cell(column(spot.place.x()), row(spot.place.y()));
    };
    m_begins.assign(static_cast<std::size_t>(m_side) * static_cast<std::size_t>(m_side) + 1, 0);
    for (const MapSpot& spot : spots) {
        ++m_begins[cellOfSpot(spot) + 1];
    }
    for (std::size_t i = 1; i < m_begins.size(); ++i) {
        m_begins[i] += m_begins[i - 1];
    }
    std::ranges::stable_sort(spots, {}, cellOfSpot);
    m_spots = std::move(spots);
}

int SpotGrid::column(double x) const
{
    return cellOf(x - m_extent.left(), m_extent.width(), m_side);
}

int SpotGrid::row(double y) const
{
    return cellOf(y - m_extent.top(), m_extent.height(), m_side);
}

std::size_t SpotGrid::cell(int column, int row) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_side) +
           static_cast<std::size_t>(column);
}

/// Visits the spots of the cells that `area` touches.
template <typename Visit>
void SpotGrid::visit(const QRectF& area, Visit visit) const
{
    const int last = column(area.right());
    for (int y = row(area.top()); y <= row(area.bottom()); ++y) {
        const std::size_t end = m_begins[cell(last, y) + 1];
        for (std::size_t i = m_begins[cell(column(area.left()), y)]; i < end; ++i) {
            visit(m_spots[i]);
        }
    }
}

int SpotGrid::nearest(QPointF point, double radius) const
{
    int locality = 0;
    double least = radius * radius;
    const QRectF around(point.x() - radius, point.y() - radius, 2 * radius, 2 * radius);
    visit(around, [&](const MapSpot& spot) {
        const double distance = squaredDistance(spot.place, point);
        if (distance < least || (distance == least && locality == 0)) {
            least = distance;
            locality = spot.locality;
        }
    });
    return locality;
}

std::set<int> SpotGrid::within(const QRectF& area) const
{
    std::set<int> localities;
    visit(area, [&](const MapSpot& spot) {
        if (area.contains(spot.place)) {
            localities.insert(spot.locality);
        }
    });
    return localities;
}
