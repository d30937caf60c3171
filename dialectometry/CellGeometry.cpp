#include "dialectometry/CellGeometry.h"

#include "dialectometry/CoastRings.h"
#include "platform/RunTimeError.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <geos_c.h>
#include <memory>

namespace {

using Context = GEOSContextHandle_t;

/// A geometry that is gone with its owner.
class Shape
{
public:
    /// Raises invalid procedure call where GEOS made none.
    Shape(Context context, GEOSGeometry* geometry) : m_geometry(geometry, Destroyer{context})
    {
        if (geometry == nullptr) {
            throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                               QStringLiteral("The cells of the localities cannot be computed."));
        }
    }

    const GEOSGeometry* get() const { return m_geometry.get(); }
    GEOSGeometry* release() { return m_geometry.release(); }

private:
    struct Destroyer
    {
        Context context;
        void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
    };

    std::unique_ptr<GEOSGeometry, Destroyer> m_geometry;
};

/// GEOS for one computation. Its coordinates count from `origin`.
class Geos
{
public:
    explicit Geos(QPointF origin) : m_context(GEOS_init_r()), m_origin(origin) {}
    ~Geos() { GEOS_finish_r(m_context); }
    Geos(const Geos&) = delete;
    Geos& operator=(const Geos&) = delete;

    Context context() const { return m_context; }

    Shape points(std::span<const QPointF> places) const
    {
        std::vector<GEOSGeometry*> all;
        for (const QPointF place : places) {
            const QPointF point = place - m_origin;
            all.push_back(GEOSGeom_createPointFromXY_r(m_context, point.x(), point.y()));
        }
        return collection(GEOS_MULTIPOINT, all);
    }

    /// What `ring` goes around, made valid where it crosses itself.
    Shape polygon(const Ring& ring) const
    {
        std::vector<double> numbers;
        numbers.reserve(2 * (ring.size() + 1));
        for (std::size_t i = 0; i <= ring.size(); ++i) {
            const QPointF point = ring[i % ring.size()] - m_origin;
            numbers.push_back(point.x());
            numbers.push_back(point.y());
        }
        GEOSCoordSequence* points = GEOSCoordSeq_copyFromBuffer_r(
            m_context, numbers.data(), static_cast<unsigned>(ring.size() + 1), 0, 0);
        GEOSGeometry* line = GEOSGeom_createLinearRing_r(m_context, points);
        const Shape polygon(m_context, GEOSGeom_createPolygon_r(m_context, line, nullptr, 0));
        return {m_context, GEOSMakeValid_r(m_context, polygon.get())};
    }

    Shape unionOf(std::vector<Shape>& shapes) const
    {
        std::vector<GEOSGeometry*> all;
        all.reserve(shapes.size());
        for (Shape& shape : shapes) {
            all.push_back(shape.release());
        }
        const Shape parts = collection(GEOS_GEOMETRYCOLLECTION, all);
        return {m_context, GEOSUnaryUnion_r(m_context, parts.get())};
    }

    Shape widened(const Shape& shape, double by) const
    {
        constexpr int PiecesOfQuarter = 8;
        return {m_context, GEOSBuffer_r(m_context, shape.get(), by, PiecesOfQuarter)};
    }

    Shape hull(const Shape& shape) const { return {m_context, GEOSConvexHull_r(m_context, shape.get())}; }
    Shape voronoi(const Shape& places) const
    {
        return {m_context, GEOSVoronoiDiagram_r(m_context, places.get(), nullptr, 0, 0)};
    }
    Shape common(const GEOSGeometry* a, const GEOSGeometry* b) const
    {
        return {m_context, GEOSIntersection_r(m_context, a, b)};
    }

    /// The polygons among the parts of `shape`.
    std::vector<CellPolygon> polygons(const GEOSGeometry* shape) const
    {
        std::vector<CellPolygon> all;
        for (int i = 0; i < GEOSGetNumGeometries_r(m_context, shape); ++i) {
            const GEOSGeometry* part = GEOSGetGeometryN_r(m_context, shape, i);
            const bool isPolygon = GEOSGeomTypeId_r(m_context, part) == GEOS_POLYGON;
            if (isPolygon && GEOSisEmpty_r(m_context, part) == 0) {
                all.push_back(polygonOf(part));
            }
        }
        return all;
    }

private:
    Shape collection(int type, std::vector<GEOSGeometry*>& parts) const
    {
        return {m_context, GEOSGeom_createCollection_r(m_context, type, parts.data(),
                                                       static_cast<unsigned>(parts.size()))};
    }

    CellPolygon polygonOf(const GEOSGeometry* polygon) const
    {
        CellPolygon rings = {turned(ring(GEOSGetExteriorRing_r(m_context, polygon)), -1)};
        for (int i = 0; i < GEOSGetNumInteriorRings_r(m_context, polygon); ++i) {
            rings.push_back(turned(ring(GEOSGetInteriorRingN_r(m_context, polygon, i)), 1));
        }
        return rings;
    }

    Ring ring(const GEOSGeometry* line) const
    {
        const GEOSCoordSequence* points = GEOSGeom_getCoordSeq_r(m_context, line);
        unsigned count = 0;
        GEOSCoordSeq_getSize_r(m_context, points, &count);
        Ring result;
        for (unsigned i = 0; i + 1 < count; ++i) { // the last point is the first again
            double x = 0;
            double y = 0;
            GEOSCoordSeq_getXY_r(m_context, points, i, &x, &y);
            result.push_back(QPointF(x, y) + m_origin);
        }
        return result;
    }

    /// `ring` with an area of this sign.
    static Ring turned(Ring ring, int sign)
    {
        if (signedArea(ring) * sign < 0) {
            std::reverse(ring.begin(), ring.end());
        }
        return ring;
    }

    Context m_context;
    QPointF m_origin;
};

/// Tests many shapes against one.
class PreparedShape
{
public:
    PreparedShape(Context context, const Shape& shape)
        : m_context(context), m_prepared(GEOSPrepare_r(context, shape.get()))
    {}
    ~PreparedShape() { GEOSPreparedGeom_destroy_r(m_context, m_prepared); }
    PreparedShape(const PreparedShape&) = delete;
    PreparedShape& operator=(const PreparedShape&) = delete;

    bool contains(const GEOSGeometry* shape) const
    {
        return GEOSPreparedContains_r(m_context, m_prepared, shape) == 1;
    }

private:
    Context m_context;
    const GEOSPreparedGeometry* m_prepared;
};

Shape areaOf(const Geos& geos, std::span<const QPointF> places, const CellArea& area)
{
    std::vector<Shape> parts;
    for (const Ring& coast : area.coasts) {
        parts.push_back(geos.polygon(coast));
    }
    if (area.hull) {
        parts.push_back(geos.widened(geos.hull(geos.points(places)), area.margin));
    }
    if (!area.discs.empty()) {
        parts.push_back(geos.widened(geos.points(area.discs), area.margin));
    }
    return geos.unionOf(parts);
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
