#include "exchange/NewMap.h"

#include "exchange/BaseMapMaker.h"
#include "exchange/LegendPlace.h"
#include "exchange/MapFrame.h"
#include "exchange/PlacedNames.h"
#include "exchange/SurveyProjection.h"
#include "platform/RunTimeError.h"

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

QStringList layersOf(const SourceSurvey& survey, const SurveyChoices& choices, const QString& naturalEarth)
{
    if (!choices.baseMap.isEmpty()) {
        return choices.baseMap;
    }
    const bool hasOwn = !survey.baseMapLayers.isEmpty() || survey.plane;
    return hasOwn ? survey.baseMapLayers : QStringList{naturalEarth};
}

} // namespace

NewMap makeMap(const SourceSurvey& survey, const SurveyChoices& choices, QSizeF longestLegend,
               const QString& naturalEarth, ImportReport& report)
{
    constexpr double AroundSpot = 200000; // metres

    const QString pipeline = surveyProjection(survey, choices.projection);
    const std::vector<QPointF> points = projectedAll(MapFrame(pipeline, survey.plane), survey.localities);
    const double aroundSpot = survey.plane ? 1 : AroundSpot;
    const MapLayout layout = layOutMap(points, aroundSpot, longestLegend / MapFrame::Twips);
    if (!layout.legendIsFree) {
        report.tell(QStringLiteral("The longest legend is so wide that it covers localities."));
    }

    const MapFrame frame(withLayout(pipeline, layout), survey.plane);
    NewMap map;
    map.localities = localitiesAt(projectedAll(frame, survey.localities));
    map.names = namesOf(survey, frame.pipeline());
    map.lines = makeBaseMap(frame, layout.legend, layersOf(survey, choices, naturalEarth), report);
    map.placeNames = makePlaceNames(survey.title, layout.legend, frame, map.localities, map.lines);
    return map;
}
