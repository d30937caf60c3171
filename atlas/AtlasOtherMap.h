#pragma once

#include "atlas/AtlasDrawing.h"
#include "atlas/AtlasMapKind.h"
#include "dialectometry/ItemMaps.h"

class AtlasSurveyMaps;
struct VarnModule;

/// The map of the item of that kind as the user wants it; the linguistic map for a kind that shows no item.
ItemMapSettings itemMapSettings(AtlasMapKind kind, const AtlasSurveyMaps& survey);

/// What the map of that kind is drawn by; nothing for the linguistic map. `wordForm` is the one of the table
/// (from 1) where a map shows a single one. `varn` and `survey` must outlive it.
OtherMap otherMap(AtlasMapKind kind, int wordForm, VarnModule& varn, AtlasSurveyMaps& survey);
