#pragma once

#include "exchange/SourceSurvey.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/Folders.h"

#include <optional>

/// The current map with all its items, as the sources of surveys give theirs. A map without `Localities.csv`
/// is a plane survey in map units whose localities are called by their numbers. Items are called by their
/// captions, or by their files where they have none; those that cannot be read or belong to another map are
/// left out and told in the report. Word forms stay as they are written in the item, phonetic codes too; an
/// empty one is no answer. Nothing where `progress` stopped it. Raises what reading the map raises.
std::optional<SourceSurvey> readStoredSurvey(const Folders& folders, const ExchangeProgress& progress);
