#include "atlas/RecordCounts.h"

#include "render/SymbolMarks.h"

#include <algorithm>
#include <functional>

namespace {

/// Gathers the localities of word forms, each once, in time that grows with the word forms alone.
class LocalityUnion
{
public:
    void add(const std::vector<int>& localities)
    {
        for (const int i : localities) {
            m_isIn.resize(std::max(m_isIn.size(), static_cast<std::size_t>(i) + 1));
            m_isIn[static_cast<std::size_t>(i)] = true;
        }
    }

    std::vector<int> numbers() const
    {
        std::vector<int> numbers;
        for (std::size_t i = 0; i < m_isIn.size(); ++i) {
            if (m_isIn[i]) {
                numbers.push_back(static_cast<int>(i));
            }
        }
        return numbers;
    }

private:
    std::vector<bool> m_isIn;
};

std::vector<std::size_t> wordsWith(const std::vector<std::vector<int>>& marks,
                                   const std::function<bool(std::size_t)>& fits)
{
    std::vector<std::size_t> words;
    for (std::size_t n = 0; n < marks.size(); ++n) {
        if (fits(marks[n].size())) {
            words.push_back(n);
        }
    }
    return words;
}

} // namespace

std::vector<AnsweredWord> answeredWords(const ItemAnswers& item)
{
    std::vector<AnsweredWord> words;
    QHash<QString, std::size_t> known;
    for (int i = 1; i <= item.NLocate; ++i) {
        for (int j = 1; j <= item.WordCount(i); ++j) {
            const QString& word = item.WordData(i, j);
            const std::size_t n = known.value(word, words.size());
            if (n == words.size()) {
                known.insert(word, n);
                words.push_back({word, {}});
            }
            if (words[n].localities.empty() || words[n].localities.back() != i) {
                words[n].localities.push_back(i);
            }
        }
    }
    std::ranges::stable_sort(words, std::greater(),
                             [](const AnsweredWord& word) { return word.localities.size(); });
    return words;
}

std::vector<std::size_t> RecordCounts::unmarked() const
{
    return wordsWith(marks, [](std::size_t n) { return n == 0; });
}

std::vector<std::size_t> RecordCounts::markedTwice() const
{
    return wordsWith(marks, [](std::size_t n) { return n > 1; });
}

RecordCount RecordCounter::countOf(const SymbolMarks& marks, int k) const
{
    RecordCount count;
    LocalityUnion localities;
    for (std::size_t n = 0; n < m_words.size(); ++n) {
        if (marks(k, m_words[n].word)) {
            count.words.push_back(n);
            localities.add(m_words[n].localities);
        }
    }
    count.localities = localities.numbers();
    return count;
}

RecordCounts RecordCounter::count(const SymbolRecords& symbols, bool wholeWordForms)
{
    const SymbolMarks marks(symbols, wholeWordForms);
    const QHash<QString, RecordCount> known =
        m_wholeWordForms == wholeWordForms ? std::exchange(m_known, {}) : QHash<QString, RecordCount>();
    m_known.clear();
    m_wholeWordForms = wholeWordForms;
    RecordCounts counts;
    counts.marks.resize(m_words.size());
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        const QString& kind = symbols.HankoWord(k);
        const bool isKnown = !kind.isEmpty() && known.contains(kind); // the empty one is for all others
        const RecordCount count = isKnown ? known[kind] : countOf(marks, k);
        for (const std::size_t n : count.words) {
            counts.marks[n].push_back(k);
        }
        m_known.insert(kind, count);
        counts.records.push_back(count);
    }
    return counts;
}
