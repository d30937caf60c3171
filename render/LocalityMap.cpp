#include "render/LocalityMap.h"

#include "platform/StandardColors.h"
#include "render/BlankMap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float PaperHeight = 4500;
constexpr float PaperMargin = 150;
constexpr float DotRadius = 18;

/// The smallest rectangle with all points that were added, in map units.
struct Extent
{
    float left = std::numeric_limits<float>::max();
    float top = std::numeric_limits<float>::max();
    float right = std::numeric_limits<float>::lowest();
    float bottom = std::numeric_limits<float>::lowest();

    void add(float x, float y)
    {
        left = std::min(left, x);
        top = std::min(top, y);
        right = std::max(right, x);
        bottom = std::max(bottom, y);
    }
    bool isEmpty() const { return left > right; }
    bool hasArea() const { return left < right && top < bottom; }
    float longerSide() const { return std::max(right - left, bottom - top); }
};

void addLines(const MapLines& map, Extent& extent)
{
    for (int i = 1; i <= map.NLine; ++i) {
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            extent.add(map.LineXY(i, j, 0) + map.LineOffset(i, 0),
                       map.LineXY(i, j, 1) + map.LineOffset(i, 1));
        }
    }
}

void addLocalities(const Localities& map, Extent& extent)
{
    for (int i = 1; i <= map.NLocality; ++i) {
        extent.add(map.LocXY(i, 0), map.LocXY(i, 1));
    }
}

/// Makes the surface the paper that `extent` fills but for a margin.
void fitPaper(const Extent& extent, const MapGeometry& geometry, DrawSurface& surface)
{
    surface.ScaleLeft = geometry.toScreen(extent.left) - PaperMargin;
    surface.ScaleTop = geometry.toScreen(extent.top) - PaperMargin;
    surface.Width = geometry.toScreen(extent.right) + PaperMargin - surface.ScaleLeft;
    surface.Height = geometry.toScreen(extent.bottom) + PaperMargin - surface.ScaleTop;
}

} // namespace

void LocalityMap::draw(const BaseMap& map)
{
    m_surface = {};
    m_positions.clear();
    Extent lines;
    addLines(map, lines);
    Extent all = lines;
    addLocalities(map, all);
    if (all.isEmpty()) {
        return;
    }

    // The lines are scaled by the height of a map form.
    constexpr FormArea Form{0, 0, 0, PaperHeight};
    MapGeometry geometry;
    geometry.Scale =
        lines.hasArea() ? FindMinMax(map, Form, geometry) : PaperHeight / std::max(all.longerSide(), 1.0F);
    fitPaper(all, geometry, m_surface);
    if (lines.hasArea()) {
        PlotLineData(map, geometry, {{m_surface, m_surface}, Form});
    }
    m_surface.FillStyle = DrawSurface::Fill::Solid;
    m_surface.FillColor = QBColor(StandardColor::Black);
    for (int i = 1; i <= map.NLocality; ++i) {
        const float x = geometry.toScreen(map.LocXY(i, 0));
        const float y = geometry.toScreen(map.LocXY(i, 1));
        m_surface.Circle(x, y, DotRadius, QBColor(StandardColor::Black));
        m_positions.emplace_back(x - m_surface.ScaleLeft, y - m_surface.ScaleTop);
    }
}

int LocalityMap::nearest(QPointF point) const
{
    const auto distance = [point](QPointF position) {
        return std::hypot(position.x() - point.x(), position.y() - point.y());
    };
    const auto found =
        std::min_element(m_positions.begin(), m_positions.end(),
                         [distance](QPointF a, QPointF b) { return distance(a) < distance(b); });
    return found == m_positions.end() ? 0 : static_cast<int>(found - m_positions.begin()) + 1;
}
