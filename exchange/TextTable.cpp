#include "exchange/TextTable.h"

#include "geodata/GeoData.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <utility>

namespace {

/// Stands for a quote in a text that does not quote its cells, while GDAL parts it.
constexpr QChar LiteralQuote(0xF8FE);
constexpr QLatin1Char Quote('"');

/// A row of the text before it is parted: a quoted cell may go over several lines.
struct Record
{
    int number = 0;
    QString text;
};

bool endsInsideQuotes(const QString& text)
{
    return text.count(Quote) % 2 != 0;
}

/// Whether cells of the text stand in quotes; else a quote is a character as any other, such as of seconds.
bool quotesCells(const QString& text)
{
    static constexpr std::array starts = {QLatin1String(",\""), QLatin1String(";\""), QLatin1String("\t\""),
                                          QLatin1String("|\""), QLatin1String("\n\"")};
    return text.startsWith(Quote) ||
           std::ranges::any_of(starts, [&text](QLatin1String start) { return text.contains(start); });
}

std::vector<Record> recordsOf(const QString& text)
{
    std::vector<Record> records;
    int number = 0;
    bool continued = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        ++number;
        if (continued) {
            records.back().text += QLatin1Char('\n') + line;
            continued = endsInsideQuotes(line) ? !continued : continued;
        } else if (!line.startsWith(QLatin1Char('#')) && !line.trimmed().isEmpty()) {
            records.push_back({number, line});
            continued = endsInsideQuotes(line);
        }
    }
    return records;
}

/// How many cells `separator` parts a record into, quoted ones whole.
qsizetype cellCount(const QString& text, QChar separator)
{
    qsizetype count = 1;
    bool quoted = false;
    for (const QChar character : text) {
        quoted = quoted != (character == Quote);
        count += !quoted && character == separator ? 1 : 0;
    }
    return count;
}

/// How many of the records have as many cells as most have; none where `separator` parts nothing.
qsizetype evenness(const std::vector<Record>& records, QChar separator)
{
    constexpr std::size_t Looked = 200;
    std::map<qsizetype, qsizetype> recordsOfCount;
    for (std::size_t i = 0; i < std::min(records.size(), Looked); ++i) {
        ++recordsOfCount[cellCount(records[i].text, separator)];
    }
    recordsOfCount.erase(1);
    const auto most =
        std::ranges::max_element(recordsOfCount, {}, [](const auto& entry) { return entry.second; });
    return most == recordsOfCount.end() ? 0 : most->second;
}

QChar separatorOf(const std::vector<Record>& records)
{
    constexpr std::array separators{u'\t', u';', u',', u'|'};
    return *std::ranges::max_element(separators, {},
                                     [&](char16_t separator) { return evenness(records, separator); });
}

/// The records as GDAL parts them without guessing: under headings of our own, as many as the widest record
/// has cells, each record with its number before it.
QByteArray numberedText(const std::vector<Record>& records, QChar separator)
{
    qsizetype widest = 1;
    for (const Record& record : records) {
        widest = std::max(widest, cellCount(record.text, separator));
    }
    QString text = QStringLiteral("row");
    for (qsizetype column = 1; column <= widest; ++column) {
        text += separator + QStringLiteral("c%1").arg(column);
    }
    for (const Record& record : records) {
        text += QStringLiteral("\n%1").arg(record.number) + separator + record.text;
    }
    return text.toUtf8() + '\n';
}

/// A row as it was before it was numbered.
TableRow sourceRow(TableRow row)
{
    row.number = row.cells.takeFirst().toInt();
    for (QString& cell : row.cells) {
        cell = cell.replace(LiteralQuote, Quote).trimmed();
    }
    return row;
}

std::vector<int> allColumns(const QStringList& headings)
{
    std::vector<int> columns(static_cast<std::size_t>(headings.size()));
    std::iota(columns.begin(), columns.end(), 0);
    return columns;
}

} // namespace

std::vector<TableRow> textTableRows(const QByteArray& bytes)
{
    QString text = decodeText(bytes);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (!quotesCells(text)) {
        text.replace(Quote, LiteralQuote);
    }
    const std::vector<Record> records = recordsOf(text);
    std::vector<TableRow> rows = geoData().csvRows(numberedText(records, separatorOf(records)), allColumns);
    std::ranges::transform(rows, rows.begin(), [](TableRow& row) { return sourceRow(std::move(row)); });
    return rows;
}
