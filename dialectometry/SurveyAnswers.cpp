#include "dialectometry/SurveyAnswers.h"

#include "dialectometry/AreaMap.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/FileName.h"
#include "platform/SequentialFile.h"
#include "render/MadeSymbols.h"
#include "symbols/SymbolFile.h"

#include <QHash>

#include <algorithm>

namespace {

QString captionOr(const ItemAnswers& item, const QString& name)
{
    return item.Hanrei.isEmpty() ? name : item.Hanrei;
}

} // namespace

ComparedItem comparedItem(const ItemAnswers& item, const QString& name)
{
    ComparedItem compared{name, captionOr(item, name), {}, {}};
    QHash<QString, int> numbers;
    for (int i = 1; i <= item.NLocate; ++i) {
        std::vector<int>& answers = compared.answers.emplace_back();
        for (int j = 1; j <= item.WordCount(i); ++j) {
            const QString& word = item.WordData(i, j);
            if (word.isEmpty()) {
                continue;
            }
            const auto known = numbers.constFind(word);
            const int number = known == numbers.cend() ? static_cast<int>(compared.forms.size()) : *known;
            if (known == numbers.cend()) {
                numbers.insert(word, number);
                compared.forms << word;
            }
            if (std::ranges::find(answers, number) == answers.end()) {
                answers.push_back(number);
            }
        }
    }
    return compared;
}

ComparedItem comparedKinds(const ItemAnswers& item, const SymbolSet& symbols, bool wholeWordForms,
                           const QString& name)
{
    ComparedItem compared{name, captionOr(item, name), {}, {}};
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        compared.forms << symbols.HankoCaption(k);
    }
    compared.answers = recordsOfLocalities(item, symbols, wholeWordForms, item.NLocate);
    return compared;
}

ComparedItem readComparedItem(const DriveC& drive, const QString& path, AnswerRule rule, int localities)
{
    const ItemAnswers item = readSequentialFile(drive, path, readItem);
    if (const QString mismatch = localityMismatch(item.NLocate, localities); !mismatch.isEmpty()) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, mismatch).at({path});
    }
    if (rule.by == AnswersBy::WordForms) {
        return comparedItem(item, stemOf(path));
    }
    const SymbolSet symbols = readSequentialFile(drive, withEnding(path, SymbolFiles.ending), readSymbolSet);
    return comparedKinds(item, symbols, rule.wholeWordForms || isMadeForWholeWordForms(symbols),
                         stemOf(path));
}
