#pragma once

#include "exchange/NewSurvey.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/Folders.h"

/// Raises bad file name for a name that the folder of a map cannot have on every system, or that a map of the
/// installation has already, in whatever letter case; and path not found for an installation without maps.
void requireNewMap(const Folders& folders, const QString& mapName);

/// Writes the survey as the map of that name (without a backslash). The map's folder appears complete or not
/// at all. Returns false where `progress` stopped it. Raises what `requireNewMap` and writing a file raise.
bool writeSurvey(const NewSurvey& survey, const Folders& folders, const QString& mapName,
                 const ExchangeProgress& progress);
