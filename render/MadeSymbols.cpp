#include "render/MadeSymbols.h"

#include "render/LegendText.h"
#include "symbols/SymbolPalette.h"

#include <QMap>

#include <algorithm>
#include <numeric>

namespace {

QString madeForWholeWordForms()
{
    return QStringLiteral("Made for whole word forms: choose \"Whole Word Forms\" before drawing.");
}

constexpr size_t MostRecords = decltype(SymbolRecords::HankoWord)::last();

/// For each kind of an item that has a record of its own, the number of its symbol in the palette.
using Symbols = std::vector<int>;

/// How many of the kinds have a record of their own.
size_t ownRecords(const std::vector<KindFrequency>& kinds)
{
    return kinds.size() <= MostRecords ? kinds.size() : MostRecords - 1;
}

/// How wide the captions of a set can be, in twips, so that all columns of its legend have room.
double captionWidth(size_t records)
{
    constexpr double ColumnGap = 600;
    constexpr size_t Rows = 28;

    const size_t columns = records / Rows + 1;
    return WidestLegendText / static_cast<double>(columns) - ColumnGap;
}

void addRecord(SymbolSet& set, const QString& kind, const QString& caption, const HankoStyle& symbol)
{
    const int k = ++set.NHanrei;
    set.HankoWord(k) = kind;
    set.HankoCaption(k) = caption;
    set.Hanko(k) = symbol;
}

SymbolSet symbolSet(const std::vector<KindFrequency>& kinds, const Symbols& symbols,
                    const SymbolPalette& palette)
{
    SymbolSet set;
    set.Explain = madeForWholeWordForms();
    if (symbols.size() < kinds.size()) {
        addRecord(set, {}, QStringLiteral("other (%1)").arg(kinds.size() - symbols.size()),
                  SymbolPalette::dot());
    }
    const double width = captionWidth(std::min(kinds.size(), MostRecords));
    for (size_t i = 0; i < symbols.size(); ++i) {
        addRecord(set, kinds[i].kind, withoutHyphens(cutToWidth(kinds[i].kind, width)),
                  palette.symbol(symbols[i]));
    }
    return set;
}

/// Gives the word forms of several items their symbols, so that no item has one twice.
class SharedSymbols
{
public:
    SharedSymbols(const std::vector<std::vector<KindFrequency>>& items, int paletteSize)
        : m_taken(items.size(), std::vector<bool>(static_cast<size_t>(paletteSize)))
    {
        for (size_t item = 0; item < items.size(); ++item) {
            m_symbols.emplace_back(ownRecords(items[item]));
            for (size_t kind = 0; kind < m_symbols[item].size(); ++kind) {
                Word& word = m_words[items[item][kind].kind];
                word.count += items[item][kind].count;
                word.uses.push_back({item, kind});
            }
        }
    }

    /// The most frequent word forms of the survey choose first.
    std::vector<Symbols> choose()
    {
        std::vector<const Word*> words;
        for (const Word& word : std::as_const(m_words)) {
            words.push_back(&word);
        }
        std::ranges::stable_sort(words, std::greater(), &Word::count);
        for (const Word* word : words) {
            chooseFor(word->uses);
        }
        return std::move(m_symbols);
    }

private:
    struct Use
    {
        size_t item;
        size_t kind;
    };

    struct Word
    {
        int count = 0;
        std::vector<Use> uses;
    };

    /// The first symbol that is free in the items of all uses; the palette's size where there is none.
    int firstFree(const std::vector<Use>& uses) const
    {
        size_t symbol = 0;
        while (symbol < m_taken.front().size() &&
               std::ranges::any_of(uses, [&](const Use& use) { return m_taken[use.item][symbol]; })) {
            ++symbol;
        }
        return static_cast<int>(symbol);
    }

    /// Where no symbol is free in all items, each use has the first that is free in its own.
    void chooseFor(const std::vector<Use>& uses)
    {
        const int shared = firstFree(uses);
        const bool isFree = shared < static_cast<int>(m_taken.front().size());
        for (const Use& use : uses) {
            const int symbol = isFree ? shared : firstFree({use});
            m_symbols[use.item][use.kind] = symbol;
            m_taken[use.item][static_cast<size_t>(symbol)] = true;
        }
    }

    QMap<QString, Word> m_words;
    /// Of each item, which symbols of the palette it has.
    std::vector<std::vector<bool>> m_taken;
    std::vector<Symbols> m_symbols;
};

std::vector<Symbols> symbolsByRank(const std::vector<std::vector<KindFrequency>>& items)
{
    std::vector<Symbols> symbols;
    for (const auto& kinds : items) {
        Symbols& ranks = symbols.emplace_back(ownRecords(kinds));
        std::iota(ranks.begin(), ranks.end(), 0);
    }
    return symbols;
}

} // namespace

std::vector<KindFrequency> kindsByFrequency(const std::vector<QStringList>& answers)
{
    QMap<QString, int> counts; // in binary order
    for (const QStringList& words : answers) {
        for (const QString& word : words) {
            ++counts[word];
        }
    }
    std::vector<KindFrequency> kinds;
    for (auto kind = counts.cbegin(); kind != counts.cend(); ++kind) {
        kinds.push_back({kind.key(), kind.value()});
    }
    std::ranges::stable_sort(kinds, std::greater(), &KindFrequency::count);
    return kinds;
}

std::vector<SymbolSet> makeSymbols(const std::vector<std::vector<KindFrequency>>& items, bool categorical,
                                   int polygons)
{
    const SymbolPalette palette(polygons);
    const std::vector<Symbols> symbols =
        categorical ? SharedSymbols(items, palette.size()).choose() : symbolsByRank(items);
    std::vector<SymbolSet> sets;
    for (size_t item = 0; item < items.size(); ++item) {
        sets.push_back(symbolSet(items[item], symbols[item], palette));
    }
    return sets;
}

bool isMadeForWholeWordForms(const SymbolRecords& symbols)
{
    return symbols.Explain == madeForWholeWordForms();
}
