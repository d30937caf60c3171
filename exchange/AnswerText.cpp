#include "exchange/AnswerText.h"

#include <algorithm>

QString guessSeparator(const QStringList& cells)
{
    QString best;
    qsizetype most = 0;
    for (const char* separator : {";", " / ", "|", "\n"}) {
        const QString text = QLatin1String(separator);
        const auto count =
            std::ranges::count_if(cells, [&text](const QString& cell) { return cell.contains(text); });
        if (count > most) {
            most = count;
            best = text;
        }
    }
    return best;
}

QStringList answersIn(const QString& cell, const QString& separator)
{
    QStringList answers;
    for (const QString& part : separator.isEmpty() ? QStringList(cell) : cell.split(separator)) {
        if (const QString answer = part.trimmed(); !answer.isEmpty()) {
            answers << answer;
        }
    }
    answers.removeDuplicates();
    return answers;
}
