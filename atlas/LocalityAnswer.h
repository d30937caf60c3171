#pragma once

#include "lingdata/LinguisticData.h"
#include "mapdata/BaseMap.h"
#include "render/SymbolMarks.h"

#include <QStringList>

#include <vector>

/// A word form of a locality and the records that mark it.
struct MarkedWord
{
    QString word;
    std::vector<int> records;
};

/// What the item has of one locality.
struct LocalityAnswer
{
    /// Number and name.
    QString title;
    std::vector<MarkedWord> words;

    /// Title and word forms on one line.
    QString line() const;
};

/// What `item` has of locality i; no word form where it has no such locality.
LocalityAnswer answerOf(const LocalityNames& names, const ItemAnswers& item, const SymbolRecords& symbols,
                        const SymbolMarks& marks, int i);

/// The localities that `text` finds: first that of this number, then those with the text in their name, then
/// those with it in a word form, all without regard to letter case. None for an empty text.
std::vector<int> localitiesFound(const BaseMap& map, const ItemAnswers& item, const QString& text);
