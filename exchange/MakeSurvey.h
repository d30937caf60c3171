#pragma once

#include "exchange/NewSurvey.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/Folders.h"

#include <optional>

/// Makes of `source` a survey that can be written as a map: with its base map, and with files' names and
/// symbols for the items that were chosen. `folders` names the installation, whose polygon designs the
/// symbols use and whose coasts the map. What had to be left out stands in its report. Nothing where
/// `progress` stopped it. Raises input past end of file for a source without localities, and what making the
/// map raises.
std::optional<NewSurvey> makeSurvey(SourceSurvey source, const SurveyChoices& choices, const Folders& folders,
                                    const ExchangeProgress& progress);
