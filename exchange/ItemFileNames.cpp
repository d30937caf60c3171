#include "exchange/ItemFileNames.h"

#include "platform/FileName.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

/// A system counts characters, another one bytes; both take names four times as long.
constexpr qsizetype MostBytes = 60;

bool isSafe(const QString& letter)
{
    return QChar::isPrint(letter.toUcs4().front()) && isFileName(letter) && letter != QLatin1String("%");
}

/// The beginning of the name, in whole letters, without what is no letter of a file name anywhere.
QString safeName(const QString& name)
{
    const QString whole = QString::fromUtf8(name.toUtf8()); // half a letter becomes a question mark
    const QString letters = whole.simplified().normalized(QString::NormalizationForm_C);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, letters);
    QString safe;
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        const QString letter = letters.mid(begin, end - begin);
        const QString next = safe + (isSafe(letter) ? letter : QStringLiteral("_"));
        if (next.toUtf8().size() > MostBytes) {
            break;
        }
        safe = next;
        begin = end;
    }
    while (safe.endsWith(QLatin1Char('.')) || safe.endsWith(QLatin1Char(' '))) {
        safe.chop(1);
    }
    return safe;
}

} // namespace

QStringList itemFileNames(const QStringList& items)
{
    const auto digits = std::max<qsizetype>(3, QString::number(items.size()).size());
    QStringList names;
    for (const QString& item : items) {
        const QString number = QString::number(names.size() + 1).rightJustified(digits, QLatin1Char('0'));
        const QString name = safeName(item);
        names << (name.isEmpty() ? number : number + QLatin1Char('-') + name);
    }
    return names;
}
