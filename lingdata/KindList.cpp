#include "lingdata/KindList.h"

#include "platform/Numbers.h"

#include <QHash>

#include <algorithm>
#include <utility>
#include <vector>

void SearchKindWord(LinguisticData& data)
{
    WordKinds kinds;
    kinds.KindWord(1) = data.WordData(1, 1); // also where no locality has an answer
    QHash<QStringView, int> kindOf;
    for (int i = 1; i <= data.NLocate; ++i) {
        for (int j = 1; j <= data.WordCount(i); ++j) {
            const QString& word = data.WordData(i, j);
            if (kinds.NKind > 0) { // lengths are taken while comparing, and the first word meets no kind
                kinds.MaxKindLen = std::max(kinds.MaxKindLen, toInteger(static_cast<double>(word.size())));
            }
            int& kind = kindOf[word];
            if (kind == 0) {
                kind = ++kinds.NKind;
                kinds.KindWord(kind) = word;
            }
            kinds.KindIndex(i, j) = kind;
            ++kinds.KindCount(kind);
        }
    }
    static_cast<WordKinds&>(data) = std::move(kinds);
}

void SortKindWord(WordKinds& kinds)
{
    std::vector<std::pair<QString, qint16>> sorted;
    for (int k = 1; k <= kinds.NKind; ++k) {
        sorted.emplace_back(kinds.KindWord(k), kinds.KindCount(k));
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (int k = 1; k <= kinds.NKind; ++k) {
        auto& [word, count] = sorted[static_cast<std::size_t>(k - 1)];
        kinds.KindWord(k) = std::move(word);
        kinds.KindCount(k) = count;
    }
}

void readKinds(SequentialReader& file, WordKinds& kinds)
{
    WordKinds fresh;
    fresh.NKind = file.readCount();
    for (int k = 1; k <= fresh.NKind; ++k) {
        fresh.KindWord(k) = file.readString();
        fresh.KindCount(k) = file.readInteger();
    }
    kinds = std::move(fresh);
}

void writeKinds(SequentialWriter& file, const WordKinds& kinds)
{
    file.write(kinds.NKind);
    for (int k = 1; k <= kinds.NKind; ++k) {
        file.write(kinds.KindWord(k), kinds.KindCount(k));
    }
}
