#pragma once

#include "atlas/AtlasDrawing.h"
#include "atlas/AtlasMapKind.h"

class AtlasSurveyMaps;
struct VarnModule;

/// What the map of that kind is drawn by; nothing for the linguistic map. `wordForm` is the one of the table
/// (from 1) where a map shows a single one. `varn` and `survey` must outlive it.
OtherMap otherMap(AtlasMapKind kind, int wordForm, VarnModule& varn, AtlasSurveyMaps& survey);
