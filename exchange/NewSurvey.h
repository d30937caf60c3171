#pragma once

#include "exchange/SourceSurvey.h"
#include "exchange/SurveyChoices.h"
#include "lingdata/LinguisticData.h"
#include "mapdata/BaseMap.h"
#include "mapdata/LocalityNames.h"
#include "symbols/SymbolSet.h"

#include <vector>

/// An item of a new survey: its answers and symbols, and the name of its two files without their endings.
/// `ItemAnswers` are made of its answers (`itemAnswers`) one at a time, for they take far more room.
struct NewItem
{
    QString fileName;
    SourceItem source;
    SymbolSet symbols;
};

/// The answers of an item as its file holds them.
ItemAnswers itemAnswers(const SourceItem& item);

/// A survey that is ready to be written as a map of this program.
struct NewSurvey
{
    Localities localities;
    LocalityNames names;
    MapLines lines;
    PlaceNames placeNames;
    std::vector<NewItem> items;
    ImportReport report;
};
