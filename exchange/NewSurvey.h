#pragma once

#include "exchange/SourceSurvey.h"
#include "exchange/SurveyChoices.h"
#include "lingdata/LinguisticData.h"
#include "mapdata/BaseMap.h"
#include "mapdata/LocalityNames.h"
#include "symbols/SymbolSet.h"

#include <memory>
#include <vector>

/// An item of a new survey: its answers and symbols, and the name of its two files without their endings.
struct NewItem
{
    QString fileName;
    ItemAnswers answers;
    SymbolSet symbols;
};

/// A survey that is ready to be written as a map of this program.
struct NewSurvey
{
    Localities localities;
    LocalityNames names;
    MapLines lines;
    PlaceNames placeNames;
    std::vector<std::unique_ptr<NewItem>> items;
    ImportReport report;
};
