#pragma once

#include "platform/Drawing.h"

#include <geos_c.h>
#include <memory>
#include <span>
#include <vector>

// What this room has of GEOS.

using GeosContext = GEOSContextHandle_t;

/// A geometry that is gone with its owner.
class Shape
{
public:
    /// Raises invalid procedure call where GEOS made none.
    Shape(GeosContext context, GEOSGeometry* geometry);

    const GEOSGeometry* get() const { return m_geometry.get(); }
    GEOSGeometry* release() { return m_geometry.release(); }

private:
    struct Destroyer
    {
        GeosContext context;
        void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
    };

    std::unique_ptr<GEOSGeometry, Destroyer> m_geometry;
};

/// A polygon: its first ring runs counter-clockwise on the screen, the others, its holes, clockwise.
using CellPolygon = std::vector<Ring>;

/// GEOS for one computation, whose coordinates count from `origin`. What it cannot compute raises invalid
/// procedure call.
class Geos
{
public:
    explicit Geos(QPointF origin) : m_context(GEOS_init_r()), m_origin(origin) {}
    ~Geos() { GEOS_finish_r(m_context); }
    Geos(const Geos&) = delete;
    Geos& operator=(const Geos&) = delete;

    GeosContext context() const { return m_context; }

    Shape point(QPointF place) const;
    Shape points(std::span<const QPointF> places) const;
    Shape line(std::span<const QPointF> points) const;
    /// What `ring` goes around, made valid where it crosses itself.
    Shape polygon(const Ring& ring) const;

    /// All of `shapes`, which are taken; lines that cross or meet become pieces that end there.
    Shape unionOf(std::vector<Shape> shapes) const;
    Shape common(const GEOSGeometry* a, const GEOSGeometry* b) const;
    Shape difference(const Shape& from, const Shape& taken) const;
    Shape widened(const Shape& shape, double by) const;
    Shape hull(const Shape& shape) const;
    Shape boundary(const Shape& shape) const;
    Shape voronoi(const Shape& places) const;
    /// The polygons that pieces of lines go around.
    std::vector<Shape> polygonsBetween(const Shape& pieces) const;
    /// The point of `to` that is nearest to `from`.
    QPointF nearest(const Shape& to, QPointF from) const;
    double area(const Shape& shape) const;
    bool touch(const Shape& a, const Shape& b) const;

    /// The polygons among the parts of `shape`.
    std::vector<CellPolygon> polygons(const GEOSGeometry* shape) const;

private:
    GEOSCoordSequence* sequence(std::span<const QPointF> points) const;
    Shape collection(int type, std::vector<GEOSGeometry*>& parts) const;
    CellPolygon polygonOf(const GEOSGeometry* polygon) const;
    Ring ring(const GEOSGeometry* line) const;

    GeosContext m_context;
    QPointF m_origin;
};

/// Tests many shapes against one, which must outlive this.
class PreparedShape
{
public:
    PreparedShape(GeosContext context, const Shape& shape)
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
    GeosContext m_context;
    const GEOSPreparedGeometry* m_prepared;
};
