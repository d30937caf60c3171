#pragma once

#include "exchange/SourceSurvey.h"

/// The survey as text: a line a locality with its place, then a line an item with the answers of each
/// locality.
inline QString textOf(const SourceSurvey& survey)
{
    QStringList lines;
    for (const SourceLocality& locality : survey.localities) {
        lines << QStringLiteral("%1 %2 %3 %4")
                     .arg(locality.id, locality.name)
                     .arg(locality.position.x())
                     .arg(locality.position.y());
    }
    for (const SourceItem& item : survey.items) {
        QStringList answers;
        for (const QStringList& answer : item.answers) {
            answers << answer.join(QLatin1Char('+'));
        }
        lines << item.name + QStringLiteral(": ") + answers.join(QLatin1Char('|'));
    }
    return lines.join(QLatin1Char('\n'));
}
