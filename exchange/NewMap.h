#pragma once

#include "exchange/NamedLocalities.h"
#include "exchange/SourceSurvey.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/BaseMap.h"

#include <QSizeF>

/// The map of a new survey.
struct NewMap : NamedLocalities
{
    MapLines lines;
    PlaceNames placeNames;
};

/// Makes the map of a survey of at most 1000 localities: projects the localities, leaves a corner or a side
/// to the legend (`longestLegend`, in twips, as `LegendMeasure` measures it), and draws the lines of the
/// layers that the user gives, else of those that the source brings, else of `naturalEarth` (a path of this
/// machine). The first place name is the survey's title, the scale bar stands where it covers least. Raises
/// what `surveyProjection` and `makeBaseMap` raise, and overflow for a locality that the projection cannot
/// show.
NewMap makeMap(const SourceSurvey& survey, const SurveyChoices& choices, QSizeF longestLegend,
               const QString& naturalEarth, ImportReport& report);
