#pragma once

#include "lingdata/LinguisticData.h"
#include "symbols/SymbolSet.h"

#include <set>
#include <vector>

/// A distinct word form of an item, and the localities that answered it, in ascending order.
struct AnsweredWord
{
    QString word;
    std::vector<int> localities;
};

/// The distinct word forms of an item, those of the most localities first; those of as many in order of
/// first appearance.
std::vector<AnsweredWord> answeredWords(const ItemAnswers& item);

/// What a record marks: how many distinct word forms, and at which localities.
struct RecordCount
{
    int words = 0;
    std::set<int> localities;
};

/// What the records of a symbol set mark of an item's word forms.
struct RecordCounts
{
    /// Record k, from 1, stands at k - 1.
    std::vector<RecordCount> records;
    /// Of each word form the records that mark it, in ascending order.
    std::vector<std::vector<int>> marks;

    /// The numbers, from 0, of the word forms that no record marks, and of those that several do.
    std::vector<std::size_t> unmarked() const;
    std::vector<std::size_t> markedTwice() const;
};

/// Counts what `symbols` mark of `words`, compared as `SymbolMarks` does.
RecordCounts countRecords(const std::vector<AnsweredWord>& words, const SymbolRecords& symbols,
                          bool wholeWordForms);
