#include "dialectometry/CellGeometry.h"

#include "dialectometry/CoastRings.h"
#include "dialectometry/GeosShapes.h"
#include "dialectometry/LandSides.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

Shape areaOf(const Geos& geos, std::span<const QPointF> places, const CellArea& area)
{
    std::vector<Shape> parts;
    for (const Ring& coast : area.coasts) {
        parts.push_back(geos.polygon(coast));
    }
    if (area.hull) {
        parts.push_back(landOf(geos, places, area.openLines, area.margin));
    }
    Shape land = geos.unionOf(std::move(parts));
    const PreparedShape isLand(geos.context(), land);
    std::vector<QPointF> outside;
    std::ranges::copy_if(places, std::back_inserter(outside),
                         [&](QPointF place) { return !isLand.contains(geos.point(place).get()); });
    if (outside.empty()) {
        return land;
    }
    parts.clear();
    parts.push_back(std::move(land));
    parts.push_back(geos.widened(geos.points(outside), area.margin));
    return geos.unionOf(std::move(parts));
}

QRectF boxAround(std::span<const QPointF> places, const std::vector<CellPolygon>& area)
{
    QRectF box(places.front(), QSizeF(0, 0));
    const auto add = [&box](QPointF point) {
        box.setCoords(std::min(box.left(), point.x()), std::min(box.top(), point.y()),
                      std::max(box.right(), point.x()), std::max(box.bottom(), point.y()));
    };
    std::ranges::for_each(places, add);
    for (const CellPolygon& polygon : area) {
        std::ranges::for_each(polygon.front(), add);
    }
    return box;
}

/// The places, and four more so far away that no point of the box is nearest to them: they bound the cells
/// of the outermost places, also of places on one line or of a single one.
std::vector<QPointF> guarded(std::span<const QPointF> places, const QRectF& box)
{
    constexpr double Away = 10;

    const double far = Away * std::max(std::hypot(box.width(), box.height()), 1e-6);
    const QPointF middle = box.center();
    std::vector<QPointF> all(places.begin(), places.end());
    for (const QPointF corner :
         {QPointF(-far, -far), QPointF(far, -far), QPointF(far, far), QPointF(-far, far)}) {
        all.push_back(middle + corner);
    }
    return all;
}

/// A point as far left of and above all places as they lie apart. From there all their coordinates have as
/// many digits: near to 0, or far away from it, corners that differ by rounding are not told from others.
QPointF originFor(std::span<const QPointF> places)
{
    const QRectF box = boxAround(places, {});
    const double away = box.isNull() ? 1 : std::max(box.width(), box.height());
    return box.topLeft() - QPointF(away, away);
}

/// The number of the place in a cell; -1 of the cell of none. Cells are convex and hold one place each.
int placeIn(const Ring& cell, std::span<const QPointF> places)
{
    const auto found = std::ranges::find_if(places, [&cell](QPointF place) { return holds(cell, place); });
    return found == places.end() ? -1 : static_cast<int>(found - places.begin());
}

} // namespace

CutCells cutCells(std::span<const QPointF> places, const CellArea& area)
{
    const Geos geos(originFor(places));
    const Shape whole = areaOf(geos, places, area);
    CutCells result;
    result.area = geos.polygons(whole.get());
    result.cells.resize(places.size());
    const PreparedShape within(geos.context(), whole);
    const Shape diagram = geos.voronoi(geos.points(guarded(places, boxAround(places, result.area))));
    for (int i = 0; i < GEOSGetNumGeometries_r(geos.context(), diagram.get()); ++i) {
        const GEOSGeometry* cell = GEOSGetGeometryN_r(geos.context(), diagram.get(), i);
        std::vector<CellPolygon> polygons = geos.polygons(cell);
        const int place = polygons.empty() ? -1 : placeIn(polygons.front().front(), places);
        if (place >= 0) {
            result.cells[static_cast<std::size_t>(place)] =
                within.contains(cell) ? std::move(polygons)
                                      : geos.polygons(geos.common(cell, whole.get()).get());
        }
    }
    return result;
}
