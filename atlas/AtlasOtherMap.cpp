#include "atlas/AtlasOtherMap.h"

#include "atlas/AtlasSurveyMaps.h"
#include "render/MapSize.h"
#include "shell/VarnModule.h"

namespace {

ItemMapKind itemMapKind(AtlasMapKind kind)
{
    switch (kind) {
    case AtlasMapKind::Areas:
        return ItemMapKind::Areas;
    case AtlasMapKind::Isoglosses:
        return ItemMapKind::Isoglosses;
    default:
        return ItemMapKind::Symbols;
    }
}

OtherMap mapOfItem(AtlasMapKind kind, AtlasSurveyMaps& survey)
{
    OtherMap map;
    map.isOfItem = true;
    if (kind != AtlasMapKind::Linguistic) {
        map.draw = [kind, &survey](const LinguisticMapParts& parts, MapSurfaces surfaces) {
            drawItemMap(parts, survey.cellMap().cells, itemMapSettings(kind, survey), surfaces);
        };
    }
    return map;
}

OtherMap mapOfTable(AtlasMapKind kind, int wordForm, VarnModule& varn)
{
    OtherMap map;
    map.draw = [kind, wordForm, &varn](const LinguisticMapParts&, MapSurfaces surfaces) {
        drawTableMap(kind, wordForm, varn, surfaces);
    };
    return map;
}

OtherMap mapOfSurvey(AtlasSurveyMaps& survey)
{
    OtherMap map;
    map.draw = [&survey](const LinguisticMapParts& parts, MapSurfaces surfaces) {
        survey.draw({parts.base, parts.text, survey.cellMap().cells}, surfaces);
    };
    map.paper = survey.size(firstArea());
    map.hasLocalities = !isPlot(survey.shownKind());
    map.message = survey.trouble();
    if (survey.isAwaited()) {
        map.message = QStringLiteral("The localities are being compared.");
    }
    return map;
}

} // namespace

ItemMapSettings itemMapSettings(AtlasMapKind kind, const AtlasSurveyMaps& survey)
{
    return {itemMapKind(kind), {survey.settings().look, survey.withSymbols()}, survey.isoglossStyle()};
}

OtherMap otherMap(AtlasMapKind kind, int wordForm, VarnModule& varn, AtlasSurveyMaps& survey)
{
    if (isOfItem(kind)) {
        return mapOfItem(kind, survey);
    }
    return isOfSurvey(kind) ? mapOfSurvey(survey) : mapOfTable(kind, wordForm, varn);
}
