#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceSurvey.h"

/// Reads a survey from the point layers of a file: their attributes are the items, and its lines and areas
/// the base map. Raises what `readLayerTable` and `surveyInTable` raise.
SourceSurvey readLayerSource(const SourceChoices& choices);
