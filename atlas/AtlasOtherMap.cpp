#include "atlas/AtlasOtherMap.h"

#include "atlas/AtlasSurveyMaps.h"
#include "dialectometry/AreaMap.h"
#include "render/MapSize.h"
#include "shell/VarnModule.h"

namespace {

void drawIsoglosses(const LinguisticMapParts& parts, AtlasSurveyMaps& survey, MapSurfaces surfaces)
{
    const LocalityCells& cells = survey.cellMap().cells;
    const LocalityKinds kinds = recordsOfLocalities(
        parts.item, parts.symbols, parts.base.style.WholeWordForms, parts.base.map.NLocality);
    drawIsoglossMap({parts.base, parts.text, cells}, parts.item.Hanrei, borderChanges(cells, kinds),
                    survey.isoglossStyle(), surfaces);
}

OtherMap mapOfItem(AtlasMapKind kind, AtlasSurveyMaps& survey)
{
    OtherMap map;
    map.isOfItem = true;
    if (kind == AtlasMapKind::Areas) {
        map.draw = [&survey](const LinguisticMapParts& parts, MapSurfaces surfaces) {
            drawAreaMap(parts, survey.cellMap().cells, {survey.settings().look, survey.withSymbols()},
                        surfaces);
        };
    } else if (kind == AtlasMapKind::Isoglosses) {
        map.draw = [&survey](const LinguisticMapParts& parts, MapSurfaces surfaces) {
            drawIsoglosses(parts, survey, surfaces);
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

OtherMap otherMap(AtlasMapKind kind, int wordForm, VarnModule& varn, AtlasSurveyMaps& survey)
{
    if (isOfItem(kind)) {
        return mapOfItem(kind, survey);
    }
    return isOfSurvey(kind) ? mapOfSurvey(survey) : mapOfTable(kind, wordForm, varn);
}
