#include "atlas/LocalityAnswer.h"

#include <utility>

namespace {

bool hasWord(const ItemAnswers& item, int i, const QString& text)
{
    for (int j = 1; i <= item.NLocate && j <= item.WordCount(i); ++j) {
        if (item.WordData(i, j).contains(text, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

} // namespace

QString LocalityAnswer::line() const
{
    QStringList texts;
    for (const MarkedWord& word : words) {
        texts << word.word;
    }
    return texts.isEmpty() ? title : title + QStringLiteral(": ") + texts.join(QStringLiteral(", "));
}

LocalityAnswer answerOf(const LocalityNames& names, const ItemAnswers& item, const SymbolRecords& symbols,
                        const SymbolMarks& marks, int i)
{
    LocalityAnswer answer{localityTitle(names, i), {}};
    for (int j = 1; i <= item.NLocate && j <= item.WordCount(i); ++j) {
        MarkedWord word{item.WordData(i, j), {}};
        for (int k = 1; k <= symbols.NHanrei; ++k) {
            if (marks(k, word.word)) {
                word.records.push_back(k);
            }
        }
        answer.words.push_back(std::move(word));
    }
    return answer;
}

std::vector<int> localitiesFound(const BaseMap& map, const ItemAnswers& item, const QString& text)
{
    const QString sought = text.trimmed();
    if (sought.isEmpty()) {
        return {};
    }
    std::vector<int> numbered;
    std::vector<int> named;
    std::vector<int> answered;
    for (int i = 1; i <= map.NLocality; ++i) {
        if (sought == QString::number(i)) {
            numbered.push_back(i);
        } else if (localityName(map, i).contains(sought, Qt::CaseInsensitive)) {
            named.push_back(i);
        } else if (hasWord(item, i, sought)) {
            answered.push_back(i);
        }
    }
    numbered.insert(numbered.end(), named.begin(), named.end());
    numbered.insert(numbered.end(), answered.begin(), answered.end());
    return numbered;
}
