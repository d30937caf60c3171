#pragma once

#include "geodata/Projection.h"

#include <QString>

#include <memory>

/// The way from a survey's coordinates (degrees east and north, or the x and y of a plane) to a plane and
/// back: a pipeline as PROJ takes it. In a new map the plane is the map's own, x 0 to `Width` and y 0 to
/// `Height` downward, which fills the map form's drawing area.
class MapFrame
{
public:
    static constexpr double Width = 1000;
    /// As wide as it is, the drawing of a map this high ends inside the drawing area of 4 : 3.
    static constexpr double Height = 743;
    /// Twips a map unit on the map form's first size.
    static constexpr double Twips = 0.98 * 9000 / Height;

    /// Raises invalid procedure call for a pipeline that PROJ does not know.
    explicit MapFrame(QString pipeline, bool plane = false);

    const QString& pipeline() const { return m_pipeline; }
    bool isPlane() const { return m_plane; }

    /// Nothing for a point that the projection cannot show.
    std::optional<QPointF> toMap(QPointF source) const;
    std::optional<QPointF> toSource(QPointF map) const;

private:
    QString m_pipeline;
    bool m_plane;
    std::shared_ptr<const Projection> m_projection;
};
