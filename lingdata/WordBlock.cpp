#include "lingdata/WordBlock.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

constexpr QChar Quote = u'"';

/// The word form of a cell's text.
WordCell cleanCell(QString text)
{
    static const QRegularExpression lineBreaks(QStringLiteral("\\s*[\\r\\n\\t]+\\s*"));
    return typedCell(text.replace(lineBreaks, QStringLiteral(" ")).trimmed());
}

/// Where the quoted cell that starts at `start` ends, past its closing quote; -1 where no cell ends after it.
qsizetype quotedEnd(QStringView text, qsizetype start)
{
    qsizetype at = start + 1;
    while (at < text.size()) {
        if (text[at] != Quote) {
            ++at;
        } else if (at + 1 < text.size() && text[at + 1] == Quote) {
            at += 2;
        } else {
            const bool ends = at + 1 == text.size() || QStringView(u"\t\r\n").contains(text[at + 1]);
            return ends ? at + 1 : -1;
        }
    }
    return -1;
}

/// Where the cell that starts at `start` ends.
qsizetype cellEnd(QStringView text, qsizetype start)
{
    if (start < text.size() && text[start] == Quote) {
        if (const qsizetype end = quotedEnd(text, start); end >= 0) {
            return end;
        }
    }
    qsizetype end = start;
    while (end < text.size() && !QStringView(u"\t\n").contains(text[end])) {
        ++end;
    }
    return end;
}

WordCell readCell(QStringView raw)
{
    if (raw == QStringView(u"\"\"")) {
        return QString();
    }
    if (raw.size() < 2 || raw.front() != Quote || quotedEnd(raw, 0) != raw.size()) {
        return cleanCell(raw.toString());
    }
    return cleanCell(raw.mid(1, raw.size() - 2).toString().replace(QStringLiteral("\"\""), Quote));
}

QString writtenCell(const WordCell& cell)
{
    static const QRegularExpression special(QStringLiteral("^$|[\"\\r\\n\\t]"));
    QString text = cell.value_or(QString());
    if (!cell || !text.contains(special)) {
        return text;
    }
    return Quote + text.replace(Quote, QStringLiteral("\"\"")) + Quote;
}

} // namespace

int columnsOf(const WordBlock& block)
{
    std::size_t most = 0;
    for (const auto& row : block) {
        most = std::max(most, row.size());
    }
    return static_cast<int>(most);
}

WordBlock readBlock(const QString& text)
{
    WordBlock block;
    std::vector<WordCell> row;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = cellEnd(text, at);
        row.push_back(readCell(QStringView(text).mid(at, end - at)));
        end += QStringView(text).mid(end).startsWith(u"\r\n") ? 1 : 0;
        const bool tab = end < text.size() && text[end] == u'\t';
        at = end + 1;
        if (tab && at == text.size()) {
            row.emplace_back();
        }
        if (!tab || at == text.size()) {
            block.push_back(std::exchange(row, {}));
        }
    }
    return block;
}

QString blockText(const WordBlock& block)
{
    QString text;
    for (const auto& row : block) {
        QStringList cells;
        for (const WordCell& cell : row) {
            cells << writtenCell(cell);
        }
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}
