#include "exchange/NewMap.h"

#include "exchange/BaseMapMaker.h"
#include "exchange/PlacedNames.h"

namespace {

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
    const SurveyFrame laidOut = frameOf(survey, choices.projection, longestLegend);
    const auto& [frame, layout] = laidOut;
    if (!layout.legendIsFree) {
        report.tell(QStringLiteral("The longest legend is so wide that it covers localities."));
    }
    NewMap map;
    static_cast<NamedLocalities&>(map) = localitiesIn(frame, survey);
    map.lines = makeBaseMap(frame, layout.legend, layersOf(survey, choices, naturalEarth), report);
    map.placeNames = makePlaceNames(survey.title, layout.legend, frame, map.localities, map.lines);
    return map;
}
