#pragma once

#include "mapdata/BaseMap.h"
#include "render/MapGeometry.h"

#include <QPointF>

#include <vector>

/// A map of lines and localities alone, to find localities on. Its paper is just large enough for both.
class LocalityMap
{
public:
    /// Draws the map anew. A map without lines shows its localities; one without either is empty.
    void draw(const BaseMap& map);

    const DrawSurface& surface() const { return m_surface; }
    int localities() const { return static_cast<int>(m_positions.size()); }
    /// Where locality i = 1..localities() lies on the paper, in twips from its corner.
    QPointF position(int locality) const { return m_positions.at(static_cast<std::size_t>(locality - 1)); }
    /// The locality that lies nearest to `point` on the paper; 0 where there is none.
    int nearest(QPointF point) const;

private:
    DrawSurface m_surface;
    std::vector<QPointF> m_positions;
};
