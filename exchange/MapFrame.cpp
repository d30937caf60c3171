#include "exchange/MapFrame.h"

#include "geodata/GeoData.h"

#include <utility>

MapFrame::MapFrame(QString pipeline, bool plane)
    : m_pipeline(std::move(pipeline)), m_plane(plane), m_projection(geoData().projection(m_pipeline))
{}

std::optional<QPointF> MapFrame::toMap(QPointF source) const
{
    return m_projection->forward(source);
}

std::optional<QPointF> MapFrame::toSource(QPointF map) const
{
    return m_projection->backward(map);
}
