#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceSurvey.h"

/// Reads the survey at `choices.path`, a path of this machine: CLDF (its folder, metadata file or zip), a GIS
/// layer whose attributes are the items, or a table. Raises file not found, type mismatch for what is none of
/// these, and what the reader of each raises.
SourceSurvey readSource(const SourceChoices& choices);
