#pragma once

#include "exchange/LegendPlace.h"
#include "exchange/MapFrame.h"
#include "exchange/SourceSurvey.h"
#include "mapdata/NamedLocalities.h"

#include <optional>

/// How a survey is laid on a map.
struct SurveyFrame
{
    MapFrame frame;
    MapLayout layout;
};

/// Lays the localities of a survey on a new map, which leaves room for a legend of that size in twips.
/// `projection` is as `SurveyChoices` have it. Raises what `surveyProjection` raises, and overflow for a
/// locality that the projection cannot show.
SurveyFrame frameOf(const SourceSurvey& survey, const QString& projection, QSizeF legend);

/// The localities of a survey on the map of that frame. Raises overflow for one that it cannot show.
NamedLocalities localitiesIn(const MapFrame& frame, const SourceSurvey& survey);

/// Reads localities with names and degrees from the table or layer at `path`, a path of this machine, for a
/// map that has the names `current`: they are laid on it as its own are, or on a new one where it has none.
/// Nothing for a file that does not tell names and degrees. Raises what `readPlacedLocalities` and `frameOf`
/// raise.
std::optional<NamedLocalities> readNamedLocalities(const QString& path, const LocalityNames& current);
