#include "exchange/LayerSource.h"

#include "exchange/LayerFiles.h"
#include "exchange/LayerTable.h"
#include "exchange/TableSource.h"

SourceSurvey readLayerSource(const SourceChoices& choices)
{
    SourceSurvey survey = surveyInTable(readLayerTable(choices.path), choices);
    survey.baseMapLayers << baseMapLayersOf(choices.path);
    return survey;
}
