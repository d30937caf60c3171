#pragma once

#include "geodata/Projection.h"

#include <QString>

#include <memory>
#include <ogr_spatialref.h>

/// A projection that a pipeline of PROJ describes.
class PipelineProjection : public Projection
{
public:
    /// Raises invalid procedure call for a pipeline that PROJ does not know.
    explicit PipelineProjection(const QString& pipeline);

    std::optional<QPointF> forward(QPointF point) const override;
    std::optional<QPointF> backward(QPointF point) const override;

private:
    std::unique_ptr<OGRCoordinateTransformation> m_forward;
    std::unique_ptr<OGRCoordinateTransformation> m_backward;
};

/// What `GeoData::registeredProjection` does.
std::optional<QString> pipelineOf(const QString& code);
