#pragma once

#include "dialectometry/Distances.h"

#include <QStringList>

/// A survey with an item for each text, such as "x | x/y | | z": the localities' answers.
inline SurveyAnswers surveyOf(const QStringList& items)
{
    SurveyAnswers survey{static_cast<int>(items.value(0).count(u'|')) + 1, {}};
    for (const QString& text : items) {
        ItemAnswers item;
        for (const QString& answers : text.split(u'|')) {
            ++item.NLocate;
            item.WordCount(item.NLocate) = 0;
            for (const QString& answer : answers.trimmed().split(u'/', Qt::SkipEmptyParts)) {
                item.WordData(item.NLocate, ++item.WordCount(item.NLocate)) = answer;
            }
        }
        survey.items.push_back(comparedItem(item, QStringLiteral("item%1").arg(survey.items.size())));
    }
    return survey;
}

/// A matrix from its upper half, row by row; negative for no distance.
inline DistanceMatrix matrixOf(int size, const std::vector<double>& pairs)
{
    DistanceMatrix matrix(size);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (pairs[i] >= 0) {
            matrix.pairs()[i] = pairs[i];
        }
    }
    return matrix;
}

inline bool goOnAlways(int /*done*/, int /*of*/)
{
    return true;
}
