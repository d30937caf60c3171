#include "dialectometry/GeosShapes.h"

#include "dialectometry/CoastRings.h"
#include "platform/RunTimeError.h"

#include <algorithm>

namespace {

/// `ring` with an area of this sign.
Ring turned(Ring ring, int sign)
{
    if (signedArea(ring) * sign < 0) {
        std::reverse(ring.begin(), ring.end());
    }
    return ring;
}

} // namespace

Shape::Shape(GeosContext context, GEOSGeometry* geometry) : m_geometry(geometry, Destroyer{context})
{
    if (geometry == nullptr) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("The cells of the localities cannot be computed."));
    }
}

Shape Geos::point(QPointF place) const
{
    const QPointF point = place - m_origin;
    return {m_context, GEOSGeom_createPointFromXY_r(m_context, point.x(), point.y())};
}

Shape Geos::points(std::span<const QPointF> places) const
{
    std::vector<GEOSGeometry*> all;
    for (const QPointF place : places) {
        all.push_back(point(place).release());
    }
    return collection(GEOS_MULTIPOINT, all);
}

Shape Geos::line(std::span<const QPointF> points) const
{
    return {m_context, GEOSGeom_createLineString_r(m_context, sequence(points))};
}

Shape Geos::polygon(const Ring& ring) const
{
    Ring closed = ring;
    closed.push_back(ring.front());
    GEOSGeometry* line = GEOSGeom_createLinearRing_r(m_context, sequence(closed));
    const Shape polygon(m_context, GEOSGeom_createPolygon_r(m_context, line, nullptr, 0));
    return {m_context, GEOSMakeValid_r(m_context, polygon.get())};
}

Shape Geos::unionOf(std::vector<Shape> shapes) const
{
    std::vector<GEOSGeometry*> all;
    all.reserve(shapes.size());
    for (Shape& shape : shapes) {
        all.push_back(shape.release());
    }
    const Shape parts = collection(GEOS_GEOMETRYCOLLECTION, all);
    return {m_context, GEOSUnaryUnion_r(m_context, parts.get())};
}

Shape Geos::common(const GEOSGeometry* a, const GEOSGeometry* b) const
{
    return {m_context, GEOSIntersection_r(m_context, a, b)};
}

Shape Geos::difference(const Shape& from, const Shape& taken) const
{
    return {m_context, GEOSDifference_r(m_context, from.get(), taken.get())};
}

Shape Geos::widened(const Shape& shape, double by) const
{
    constexpr int PiecesOfQuarter = 8;
    return {m_context, GEOSBuffer_r(m_context, shape.get(), by, PiecesOfQuarter)};
}

Shape Geos::hull(const Shape& shape) const
{
    return {m_context, GEOSConvexHull_r(m_context, shape.get())};
}

Shape Geos::boundary(const Shape& shape) const
{
    return {m_context, GEOSBoundary_r(m_context, shape.get())};
}

Shape Geos::voronoi(const Shape& places) const
{
    return {m_context, GEOSVoronoiDiagram_r(m_context, places.get(), nullptr, 0, 0)};
}

std::vector<Shape> Geos::polygonsBetween(const Shape& pieces) const
{
    const GEOSGeometry* const all = pieces.get();
    const Shape polygons(m_context, GEOSPolygonize_r(m_context, &all, 1));
    std::vector<Shape> result;
    for (int i = 0; i < GEOSGetNumGeometries_r(m_context, polygons.get()); ++i) {
        const GEOSGeometry* polygon = GEOSGetGeometryN_r(m_context, polygons.get(), i);
        result.emplace_back(m_context, GEOSGeom_clone_r(m_context, polygon));
    }
    return result;
}

QPointF Geos::nearest(const Shape& to, QPointF from) const
{
    GEOSCoordSequence* points = GEOSNearestPoints_r(m_context, to.get(), point(from).get());
    if (points == nullptr) {
        return from;
    }
    QPointF nearest;
    GEOSCoordSeq_getXY_r(m_context, points, 0, &nearest.rx(), &nearest.ry());
    GEOSCoordSeq_destroy_r(m_context, points);
    return nearest + m_origin;
}

double Geos::area(const Shape& shape) const
{
    double area = 0;
    GEOSArea_r(m_context, shape.get(), &area);
    return area;
}

bool Geos::touch(const Shape& a, const Shape& b) const
{
    return GEOSIntersects_r(m_context, a.get(), b.get()) == 1;
}

std::vector<CellPolygon> Geos::polygons(const GEOSGeometry* shape) const
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

GEOSCoordSequence* Geos::sequence(std::span<const QPointF> points) const
{
    std::vector<double> numbers;
    numbers.reserve(2 * points.size());
    for (const QPointF point : points) {
        numbers.push_back(point.x() - m_origin.x());
        numbers.push_back(point.y() - m_origin.y());
    }
    return GEOSCoordSeq_copyFromBuffer_r(m_context, numbers.data(), static_cast<unsigned>(points.size()), 0,
                                         0);
}

Shape Geos::collection(int type, std::vector<GEOSGeometry*>& parts) const
{
    return {m_context,
            GEOSGeom_createCollection_r(m_context, type, parts.data(), static_cast<unsigned>(parts.size()))};
}

CellPolygon Geos::polygonOf(const GEOSGeometry* polygon) const
{
    CellPolygon rings = {turned(ring(GEOSGetExteriorRing_r(m_context, polygon)), -1)};
    for (int i = 0; i < GEOSGetNumInteriorRings_r(m_context, polygon); ++i) {
        rings.push_back(turned(ring(GEOSGetInteriorRingN_r(m_context, polygon, i)), 1));
    }
    return rings;
}

Ring Geos::ring(const GEOSGeometry* line) const
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
