#include "exchange/NamedLocalities.h"

#include "exchange/KnownHeadings.h"
#include "exchange/LayerFiles.h"
#include "exchange/SourceTable.h"
#include "exchange/SurveyProjection.h"
#include "exchange/TablePlaces.h"
#include "platform/RunTimeError.h"

#include <algorithm>

namespace {

/// The position of a locality on a map or in the plane of a projection.
QPointF projected(const MapFrame& way, const SourceLocality& locality)
{
    if (const auto position = way.toMap(locality.position)) {
        return *position;
    }
    throw RunTimeError(ErrorNumber::Overflow,
                       QStringLiteral("The projection cannot show locality %1 at %2, %3. Choose another "
                                      "projection, or leave out localities so far from the others.")
                           .arg(locality.name.isEmpty() ? locality.id : locality.name)
                           .arg(locality.position.x())
                           .arg(locality.position.y()));
}

std::vector<QPointF> projectedAll(const MapFrame& way, const std::vector<SourceLocality>& localities)
{
    std::vector<QPointF> points;
    points.reserve(localities.size());
    for (const SourceLocality& locality : localities) {
        points.push_back(projected(way, locality));
    }
    return points;
}

QString withLayout(const QString& pipeline, const MapLayout& layout)
{
    const auto number = [](double value) { return QString::number(value, 'g', 12); };
    return pipeline + QStringLiteral(" +step +proj=affine +xoff=%1 +yoff=%2 +s11=%3 +s22=%4")
                          .arg(number(layout.offset.x()), number(layout.offset.y()), number(layout.scale),
                               number(-layout.scale));
}

Localities localitiesAt(const std::vector<QPointF>& points)
{
    Localities map;
    for (const QPointF point : points) {
        const int i = ++map.NLocality;
        map.LocXY(i, 0) = static_cast<float>(point.x());
        map.LocXY(i, 1) = static_cast<float>(point.y());
    }
    return map;
}

LocalityNames namesOf(const SourceSurvey& survey, const QString& pipeline)
{
    LocalityNames names{pipeline, survey.plane, {}};
    for (const SourceLocality& locality : survey.localities) {
        names.localityNames.push_back(
            {locality.id, locality.name, locality.position.x(), locality.position.y()});
    }
    return names;
}

bool hasHeading(const QStringList& headings, ColumnRole role)
{
    return std::ranges::any_of(headings,
                               [role](const QString& heading) { return knownRole(heading) == role; });
}

/// Whether the file tells degrees by its headings, and more than these.
bool tellsDegrees(const QString& path)
{
    constexpr qsizetype DegreesAlone = 2;
    if (isLayer(path) || !isTableName(path)) {
        return isLayer(path);
    }
    try {
        const QStringList headings = readTable(path).headings;
        return headings.size() > DegreesAlone && hasHeading(headings, ColumnRole::Longitude) &&
               hasHeading(headings, ColumnRole::Latitude);
    } catch (const RunTimeError&) {
        return false; // columns of numbers need not be a sound table
    }
}

} // namespace

SurveyFrame frameOf(const SourceSurvey& survey, const QString& projection, QSizeF legend)
{
    constexpr double AroundSpot = 200000; // metres

    const QString pipeline = surveyProjection(survey, projection);
    const std::vector<QPointF> points = projectedAll(MapFrame(pipeline, survey.plane), survey.localities);
    const double aroundSpot = survey.plane ? 1 : AroundSpot;
    const MapLayout layout = layOutMap(points, aroundSpot, legend / MapFrame::Twips);
    return {MapFrame(withLayout(pipeline, layout), survey.plane), layout};
}

NamedLocalities localitiesIn(const MapFrame& frame, const SourceSurvey& survey)
{
    return {localitiesAt(projectedAll(frame, survey.localities)), namesOf(survey, frame.pipeline())};
}

std::optional<NamedLocalities> readNamedLocalities(const QString& path, const LocalityNames& current)
{
    if (!tellsDegrees(path)) {
        return std::nullopt;
    }
    SourceSurvey survey;
    PlacedLocalities placed = readPlacedLocalities(path, {}, survey.report);
    survey.localities = std::move(placed.localities);
    survey.plane = placed.plane;
    const bool isLaidOut = !current.projection.isEmpty() && current.plane == survey.plane;
    return localitiesIn(isLaidOut ? MapFrame(current.projection, current.plane)
                                  : frameOf(survey, QStringLiteral("laea"), {}).frame,
                        survey);
}
