#pragma once

#include "lingdata/LinguisticData.h"
#include "symbols/SymbolSet.h"

#include <QHash>

#include <utility>
#include <vector>

class SymbolMarks;

/// A distinct word form of an item, and the localities that answered it, in ascending order.
struct AnsweredWord
{
    QString word;
    std::vector<int> localities;
};

/// The distinct word forms of an item, those of the most localities first; those of as many in order of
/// first appearance.
std::vector<AnsweredWord> answeredWords(const ItemAnswers& item);

/// What a record marks: numbers of distinct word forms, from 0, and their localities, in ascending order.
struct RecordCount
{
    std::vector<std::size_t> words;
    std::vector<int> localities;
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

/// Counts what the records of symbol sets mark of an item's word forms, compared as `SymbolMarks` does. It
/// looks through the word forms only for kinds that the set before did not have, so that it keeps up with
/// typing.
class RecordCounter
{
public:
    explicit RecordCounter(std::vector<AnsweredWord> words = {}) : m_words(std::move(words)) {}

    const std::vector<AnsweredWord>& words() const { return m_words; }

    RecordCounts count(const SymbolRecords& symbols, bool wholeWordForms);

private:
    RecordCount countOf(const SymbolMarks& marks, int k) const;

    std::vector<AnsweredWord> m_words;
    /// What the kinds of the last set mark, in that way of comparing.
    QHash<QString, RecordCount> m_known;
    bool m_wholeWordForms = false;
};
