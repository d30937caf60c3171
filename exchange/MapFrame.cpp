#include "exchange/MapFrame.h"

#include "exchange/GdalScope.h"
#include "platform/RunTimeError.h"

#include <cmath>
#include <ogr_spatialref.h>

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

struct MapFrame::Transformations
{
    std::unique_ptr<OGRCoordinateTransformation> forward;
    std::unique_ptr<OGRCoordinateTransformation> backward;
};

MapFrame::MapFrame(QString pipeline, bool plane) : m_pipeline(std::move(pipeline)), m_plane(plane)
{
    m_ways = std::make_shared<Transformations>(
        Transformations{transformation(m_pipeline, false), transformation(m_pipeline, true)});
}

std::optional<QPointF> MapFrame::toMap(QPointF source) const
{
    return transformed(*m_ways->forward, source);
}

std::optional<QPointF> MapFrame::toSource(QPointF map) const
{
    return transformed(*m_ways->backward, map);
}
