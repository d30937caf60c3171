#include "exchange/NewSurvey.h"

ItemAnswers itemAnswers(const SourceItem& item)
{
    ItemAnswers answers;
    answers.Hanrei = item.name;
    for (const QStringList& words : item.answers) {
        const int i = ++answers.NLocate;
        for (const QString& word : words) {
            answers.WordData(i, ++answers.WordCount(i)) = word;
        }
    }
    return answers;
}
