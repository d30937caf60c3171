#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Which part of a map is in view, and how large. Points of the map are in twips of the map as it is printed;
/// points of the view in pixels from its top left corner.
class MapViewport
{
public:
    static constexpr double SmallestZoom = 0.25;
    static constexpr double LargestZoom = 40;

    /// The view is `view` pixels large and shows `paper`. A map that was fitted stays so; any other keeps its
    /// zoom and what is in the middle.
    void setRoom(QSizeF view, const QRectF& paper);

    /// Shows the whole paper, as large as it can be.
    void fit();
    bool isFitted() const { return m_fitted; }
    /// 1 where the paper fits.
    double zoom() const { return m_zoom; }
    /// Pixels a twip.
    double scale() const { return m_fitScale * m_zoom; }

    QPointF toView(QPointF map) const { return m_origin + scale() * map; }
    QPointF toMap(QPointF view) const { return (view - m_origin) / scale(); }

    /// Zooms by `factor`; what is at `point` of the view stays there.
    void zoomAt(QPointF point, double factor);
    /// Moves the map by so many pixels. Some of the paper stays in view.
    void pan(QPointF pixels);
    /// Brings a point of the map into view, into its middle where it was outside.
    void bringIntoView(QPointF map);

private:
    void keepPaperInView();

    QSizeF m_view = {1, 1};
    QRectF m_paper = {0, 0, 1, 1};
    double m_fitScale = 1;
    double m_zoom = 1;
    QPointF m_origin;
    bool m_fitted = true;
};
