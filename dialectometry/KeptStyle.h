#pragma once

#include "platform/DrawSurface.h"

/// Gives a surface its lines, fill and colour of texts back when it goes.
class KeptStyle
{
public:
    explicit KeptStyle(DrawSurface& surface)
        : m_surface(surface), m_width(surface.DrawWidth), m_style(surface.DrawStyle),
          m_fillStyle(surface.FillStyle), m_fill(surface.FillColor), m_text(surface.ForeColor)
    {}
    ~KeptStyle()
    {
        m_surface.DrawWidth = m_width;
        m_surface.DrawStyle = m_style;
        m_surface.FillStyle = m_fillStyle;
        m_surface.FillColor = m_fill;
        m_surface.ForeColor = m_text;
    }
    KeptStyle(const KeptStyle&) = delete;
    KeptStyle& operator=(const KeptStyle&) = delete;

private:
    DrawSurface& m_surface;
    int m_width;
    PenStyle m_style;
    DrawSurface::Fill m_fillStyle;
    QRgb m_fill;
    QRgb m_text;
};

/// Draws a line through `points`, in twips.
inline void drawLine(const std::vector<QPointF>& points, QRgb color, DrawSurface& target)
{
    for (std::size_t i = 1; i < points.size(); ++i) {
        target.Line(static_cast<float>(points[i - 1].x()), static_cast<float>(points[i - 1].y()),
                    static_cast<float>(points[i].x()), static_cast<float>(points[i].y()), color);
    }
}
