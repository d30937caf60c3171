#include "geodata/gdal/PipelineProjection.h"

#include "geodata/gdal/GdalScope.h"
#include "platform/RunTimeError.h"

#include <cmath>
#include <cpl_conv.h>

namespace {

std::unique_ptr<OGRCoordinateTransformation> transformation(const QString& pipeline, bool backward)
{
    const GdalScope gdal;
    OGRCoordinateTransformationOptions options;
    options.SetCoordinateOperation(pipeline.toUtf8().constData(), backward);
    std::unique_ptr<OGRCoordinateTransformation> way(
        OGRCreateCoordinateTransformation(nullptr, nullptr, options));
    if (!way) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("\"%1\" is not a projection: %2").arg(pipeline, gdalError()));
    }
    return way;
}

std::optional<QPointF> transformed(OGRCoordinateTransformation& way, QPointF point)
{
    const GdalScope gdal;
    double x = point.x();
    double y = point.y();
    int done = FALSE;
    way.Transform(1, &x, &y, nullptr, &done);
    const bool finite = std::isfinite(x) && std::isfinite(y);
    return done && finite ? std::optional(QPointF(x, y)) : std::nullopt;
}

} // namespace

PipelineProjection::PipelineProjection(const QString& pipeline)
    : m_forward(transformation(pipeline, false)), m_backward(transformation(pipeline, true))
{}

std::optional<QPointF> PipelineProjection::forward(QPointF point) const
{
    return transformed(*m_forward, point);
}

std::optional<QPointF> PipelineProjection::backward(QPointF point) const
{
    return transformed(*m_backward, point);
}

std::optional<QString> pipelineOf(const QString& code)
{
    const GdalScope gdal;
    OGRSpatialReference system;
    char* text = nullptr;
    const bool known = system.SetFromUserInput(code.toUtf8().constData()) == OGRERR_NONE &&
                       system.IsProjected() && system.exportToProj4(&text) == OGRERR_NONE;
    const QString projection = QString::fromUtf8(text);
    CPLFree(text);
    return known ? std::optional(projection) : std::nullopt;
}
