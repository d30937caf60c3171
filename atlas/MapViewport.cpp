#include "atlas/MapViewport.h"

#include <algorithm>

namespace {

/// What is left free around a map that fits, in pixels.
constexpr double Edge = 8;

QPointF middleOf(QSizeF size)
{
    return {size.width() / 2, size.height() / 2};
}

} // namespace

void MapViewport::setRoom(QSizeF view, const QRectF& paper)
{
    if (view == m_view && paper == m_paper) {
        return;
    }
    const QPointF middle = toMap(middleOf(m_view));
    const double before = m_fitScale;
    m_view = view;
    m_paper = paper;
    m_fitScale = std::max(1e-9, std::min((view.width() - 2 * Edge) / paper.width(),
                                         (view.height() - 2 * Edge) / paper.height()));
    if (m_fitted) {
        fit();
        return;
    }
    m_zoom = std::clamp(m_zoom * before / m_fitScale, SmallestZoom, LargestZoom);
    m_origin = middleOf(m_view) - scale() * middle;
    keepPaperInView();
}

void MapViewport::fit()
{
    m_zoom = 1;
    m_origin = middleOf(m_view) - scale() * m_paper.center();
    m_fitted = true;
}

void MapViewport::zoomAt(QPointF point, double factor)
{
    const QPointF map = toMap(point);
    m_zoom = std::clamp(m_zoom * factor, SmallestZoom, LargestZoom);
    m_origin = point - scale() * map;
    m_fitted = false;
    keepPaperInView();
}

void MapViewport::pan(QPointF pixels)
{
    m_origin += pixels;
    m_fitted = false;
    keepPaperInView();
}

void MapViewport::bringIntoView(QPointF map)
{
    constexpr double Rim = 40;

    const QRectF inner = QRectF(QPointF(0, 0), m_view).adjusted(Rim, Rim, -Rim, -Rim);
    if (!inner.contains(toView(map))) {
        m_origin = middleOf(m_view) - scale() * map;
        m_fitted = false;
    }
}

void MapViewport::keepPaperInView()
{
    constexpr double Least = 60;

    const QPointF topLeft = toView(m_paper.topLeft());
    const QPointF bottomRight = toView(m_paper.bottomRight());
    const auto shift = [](double low, double high, double view) {
        return std::max(0.0, Least - high) + std::min(0.0, view - Least - low);
    };
    m_origin += QPointF(shift(topLeft.x(), bottomRight.x(), m_view.width()),
                        shift(topLeft.y(), bottomRight.y(), m_view.height()));
}
