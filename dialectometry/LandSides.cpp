#include "dialectometry/LandSides.h"

#include <QLineF>

#include <algorithm>

namespace {

/// Tells land from sea in the hull of the places.
class LandSides
{
public:
    LandSides(const Geos& geos, std::span<const QPointF> places, double margin)
        : m_geos(geos), m_places(places), m_margin(margin),
          m_hull(geos.widened(geos.hull(geos.points(places)), margin)), m_edge(geos.boundary(m_hull)),
          m_areaOfPlace(geos.area(m_hull) / static_cast<double>(places.size()))
    {}

    Shape land(const std::vector<Ring>& lines) const
    {
        std::vector<Shape> seas;
        for (Shape& part : parts(lines)) {
            if (isSea(part)) {
                seas.push_back(std::move(part));
            }
        }
        const Shape sea = m_geos.unionOf(std::move(seas));
        return m_geos.difference(m_hull, sea);
    }

private:
    /// The parts of the hull, and what lines go around outside of it.
    std::vector<Shape> parts(const std::vector<Ring>& lines) const
    {
        std::vector<Shape> pieces;
        pieces.push_back(m_geos.boundary(m_hull));
        for (const Ring& line : lines) {
            Shape reaching = m_geos.line(reachingEdge(line));
            if (m_geos.touch(reaching, m_hull)) {
                pieces.push_back(std::move(reaching));
            }
        }
        return m_geos.polygonsBetween(m_geos.unionOf(std::move(pieces)));
    }

    Ring reachingEdge(const Ring& line) const
    {
        Ring longer{reach(line.front())};
        longer.insert(longer.end(), line.begin(), line.end());
        longer.push_back(reach(line.back()));
        return longer;
    }

    /// A point on the other side of the edge, where `end` is near to it; `end` itself elsewhere.
    QPointF reach(QPointF end) const
    {
        constexpr double Near = 4;
        constexpr double Beyond = 1.01;

        const QLineF way(end, m_geos.nearest(m_edge, end));
        return way.length() < Near * m_margin ? way.pointAt(Beyond) : end;
    }

    bool isSea(const Shape& part) const
    {
        constexpr double Several = 3;
        constexpr double Fewer = 5;

        const double expected = m_geos.area(part) / m_areaOfPlace;
        return expected > Several && m_geos.touch(part, m_edge) && Fewer * placesIn(part) < expected;
    }

    double placesIn(const Shape& part) const
    {
        const PreparedShape prepared(m_geos.context(), part);
        return static_cast<double>(std::ranges::count_if(
            m_places, [&](QPointF place) { return prepared.contains(m_geos.point(place).get()); }));
    }

    const Geos& m_geos;
    std::span<const QPointF> m_places;
    double m_margin;
    Shape m_hull;
    Shape m_edge;
    double m_areaOfPlace;
};

} // namespace

Shape landOf(const Geos& geos, std::span<const QPointF> places, const std::vector<Ring>& lines, double margin)
{
    return LandSides(geos, places, margin).land(lines);
}
