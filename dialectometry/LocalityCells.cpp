#include "dialectometry/LocalityCells.h"

#include "dialectometry/CellBorders.h"
#include "dialectometry/CellGeometry.h"
#include "dialectometry/CoastRings.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>

namespace {

/// The distinct places of the localities, and the localities at each.
struct Places
{
    std::vector<QPointF> points;
    std::vector<std::vector<int>> localities;
};

Places placesOf(const Localities& map)
{
    Places places;
    std::map<std::pair<float, float>, int> known;
    for (int i = 1; i <= map.NLocality; ++i) {
        const auto next = static_cast<int>(places.points.size());
        const auto [place, isNew] = known.try_emplace({map.LocXY(i, 0), map.LocXY(i, 1)}, next);
        if (isNew) {
            places.points.emplace_back(map.LocXY(i, 0), map.LocXY(i, 1));
            places.localities.emplace_back();
        }
        places.localities[static_cast<std::size_t>(place->second)].push_back(i - 1);
    }
    return places;
}

/// The width of what the places and the lines cover.
double extentOf(const std::vector<QPointF>& points, const std::vector<Ring>& coasts)
{
    double furthest = 0;
    for (const QPointF point : points) {
        furthest = std::max(furthest, QLineF(points.front(), point).length());
    }
    for (const Ring& coast : coasts) {
        for (const QPointF point : coast) {
            furthest = std::max(furthest, QLineF(points.front(), point).length());
        }
    }
    return furthest;
}

/// The median of the ways from a place to the nearest other; that of a single place is a small part of its
/// map.
double commonWay(const std::vector<QPointF>& points, double extent)
{
    constexpr double Part = 0.05;

    if (points.size() < 2) {
        return extent > 0 ? Part * extent : 1;
    }
    std::vector<double> ways;
    for (const QPointF& point : points) {
        double nearest = std::numeric_limits<double>::max();
        for (const QPointF& other : points) {
            nearest = &other == &point ? nearest : std::min(nearest, QLineF(point, other).length());
        }
        ways.push_back(nearest);
    }
    const auto middle = ways.begin() + static_cast<std::ptrdiff_t>(ways.size() / 2);
    std::nth_element(ways.begin(), middle, ways.end());
    return *middle;
}

CellArea areaOf(const std::vector<QPointF>& points, JoinedLines lines)
{
    CellArea area;
    area.coasts = coastsAround(points, lines.closed);
    area.openLines = std::move(lines.open);
    area.margin = commonWay(points, extentOf(points, area.coasts));
    const auto held = std::ranges::count_if(points, [&area](QPointF point) {
        return std::ranges::any_of(area.coasts, [point](const Ring& coast) { return holds(coast, point); });
    });
    area.hull = 2 * held < std::ssize(points);
    return area;
}

} // namespace

LocalityCells localityCells(const Localities& localities, const MapLines& lines)
{
    Places places = placesOf(localities);
    LocalityCells result;
    if (places.points.empty()) {
        return result;
    }
    const CellArea area = areaOf(places.points, joinedLines(lines));
    const CutCells cut = cutCells(places.points, area);
    result.spacing = area.margin;
    result.localities = std::move(places.localities);
    result.borders = bordersOf(cut.cells, extentOf(places.points, area.coasts));
    for (const CellPolygon& polygon : cut.area) {
        result.area.insert(result.area.end(), polygon.begin(), polygon.end());
    }
    return result;
}

std::vector<LocalityPair> neighbourPairs(const LocalityCells& cells)
{
    const auto first = [&cells](int cell) {
        return cells.localities[static_cast<std::size_t>(cell)].front();
    };
    std::set<LocalityPair> pairs;
    for (const CellBorder& border : cells.borders) {
        if (border.left != CellBorder::Outside && border.right != CellBorder::Outside) {
            pairs.insert(std::minmax({first(border.left), first(border.right)}));
        }
    }
    return {pairs.begin(), pairs.end()};
}
