#include "dialectometry/SurveyAnswers.h"

#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/FileName.h"
#include "platform/SequentialFile.h"

#include <QHash>

#include <algorithm>

ComparedItem comparedItem(const ItemAnswers& item, const QString& name)
{
    ComparedItem compared{name, item.Hanrei.isEmpty() ? name : item.Hanrei, {}, {}};
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

SurveyAnswers readSurveyAnswers(const DriveC& drive, const QStringList& paths, int localities)
{
    SurveyAnswers survey{localities, {}};
    for (const QString& path : paths) {
        const ItemAnswers item = readSequentialFile(drive, path, readItem);
        if (const QString mismatch = localityMismatch(item.NLocate, localities); !mismatch.isEmpty()) {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, mismatch).at({path});
        }
        survey.items.push_back(comparedItem(item, stemOf(path)));
    }
    return survey;
}
