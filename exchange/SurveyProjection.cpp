#include "exchange/SurveyProjection.h"

#include "exchange/MapFrame.h"
#include "geodata/GeoData.h"
#include "platform/RunTimeError.h"

#include <QPolygonF>
#include <QtMath>

#include <cmath>

namespace {

QString fromDegrees(const QString& projection)
{
    return QStringLiteral("+proj=pipeline +step +proj=unitconvert +xy_in=deg +xy_out=rad +step ") +
           projection;
}

/// A projection at a centre in degrees, which is rounded so that the pipeline is short to read.
QString centredAt(const QString& projection, QPointF centre)
{
    return fromDegrees(
        QStringLiteral("+proj=%1 +lat_0=%2 +lon_0=%3 +datum=WGS84")
            .arg(projection, QString::number(centre.y(), 'f', 3), QString::number(centre.x(), 'f', 3)));
}

/// The direction that the localities lie in on average, seen from the Earth's centre: it knows neither poles
/// nor a date line.
QPointF meanDirection(const std::vector<SourceLocality>& localities)
{
    double x = 0;
    double y = 0;
    double z = 0;
    for (const SourceLocality& locality : localities) {
        const double longitude = qDegreesToRadians(locality.position.x());
        const double latitude = qDegreesToRadians(locality.position.y());
        x += std::cos(latitude) * std::cos(longitude);
        y += std::cos(latitude) * std::sin(longitude);
        z += std::sin(latitude);
    }
    return {qRadiansToDegrees(std::atan2(y, x)), qRadiansToDegrees(std::atan2(z, std::hypot(x, y)))};
}

/// The middle of the survey's extent.
QPointF centreOf(const std::vector<SourceLocality>& localities)
{
    const QPointF mean = meanDirection(localities);
    const MapFrame around(centredAt(QStringLiteral("laea"), mean));
    QPolygonF points;
    for (const SourceLocality& locality : localities) {
        if (const auto point = around.toMap(locality.position)) {
            points << *point;
        }
    }
    return around.toSource(points.boundingRect().center()).value_or(mean);
}

[[noreturn]] void raiseUnknown(const QString& projection)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("\"%1\" is not a projection. Give laea, tmerc, or the EPSG number of a "
                                      "system in metres, such as EPSG:3857.")
                           .arg(projection));
}

QString registered(const QString& code)
{
    const std::optional<QString> projection = geoData().registeredProjection(code);
    if (!projection) {
        raiseUnknown(code);
    }
    return *projection;
}

} // namespace

QString surveyProjection(const SourceSurvey& survey, const QString& projection)
{
    if (survey.plane) {
        return QStringLiteral("+proj=pipeline +step +proj=affine");
    }
    if (projection.startsWith(QLatin1String("EPSG:"), Qt::CaseInsensitive)) {
        return fromDegrees(registered(projection));
    }
    if (projection != QLatin1String("laea") && projection != QLatin1String("tmerc")) {
        raiseUnknown(projection);
    }
    return centredAt(projection, centreOf(survey.localities));
}

QString distancePipeline(QPointF centre)
{
    return centredAt(QStringLiteral("aeqd"), centre);
}
