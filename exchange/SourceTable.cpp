#include "exchange/SourceTable.h"

#include "exchange/TextTable.h"
#include "geodata/GeoData.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr std::size_t RowsAboveHeadings = 20;

bool hasEnding(const QString& path, std::initializer_list<const char*> endings)
{
    return std::ranges::any_of(endings, [&path](const char* ending) {
        return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    });
}

bool isText(const QString& path)
{
    return hasEnding(path, {".csv", ".tsv", ".tab", ".txt", ".u16"});
}

bool isSpreadsheet(const QString& path)
{
    return hasEnding(path, {".xlsx", ".xlsm", ".ods"});
}

bool isZip(const QString& path)
{
    return hasEnding(path, {".zip"});
}

/// The first table in a zip.
QString tableInZip(const QString& zip)
{
    const QStringList files = geoData().filesInZip(zip);
    const auto table =
        std::ranges::find_if(files, [](const QString& file) { return isText(file) || isSpreadsheet(file); });
    if (table == files.end()) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("There is no table in it.")).at({zip});
    }
    return *table;
}

qsizetype filledCells(const TableRow& row)
{
    return std::ranges::count_if(row.cells, [](const QString& cell) { return !cell.isEmpty(); });
}

/// How much a row looks like headings: its filled cells, and an empty first one, which stands over the
/// localities.
qsizetype headingCells(const TableRow& row)
{
    const qsizetype filled = filledCells(row);
    return filled > 1 && row.cells.first().isEmpty() ? filled + 1 : filled;
}

/// The row of the headings: the first that is nearly as full as the fullest; what stands above is a title.
std::size_t headingRow(const std::vector<TableRow>& rows)
{
    constexpr double Nearly = 0.7;

    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(rows.size(), RowsAboveHeadings));
    qsizetype fullest = 0;
    for (auto row = rows.begin(); row != end; ++row) {
        fullest = std::max(fullest, headingCells(*row));
    }
    const auto row = std::find_if(rows.begin(), end, [&](const TableRow& each) {
        return static_cast<double>(headingCells(each)) >= Nearly * static_cast<double>(fullest);
    });
    return static_cast<std::size_t>(row - rows.begin());
}

/// Takes off the columns right of the last heading that are empty throughout.
void cutEmptyColumns(SourceTable& table)
{
    qsizetype width = 0;
    const auto widen = [&width](const QStringList& cells) {
        for (qsizetype column = cells.size(); column > width; --column) {
            if (!cells[column - 1].isEmpty()) {
                width = column;
            }
        }
    };
    widen(table.headings);
    for (const TableRow& row : table.rows) {
        widen(row.cells);
    }
    table.headings.resize(width);
    for (TableRow& row : table.rows) {
        row.cells.resize(width);
    }
}

} // namespace

RunTimeError SourceTable::errorAt(const TableRow& row, int column, const QString& what) const
{
    const QString heading = headings.value(column);
    const QString name = heading.isEmpty() ? QString::number(column + 1) : heading;
    return RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("Column \"%1\": %2").arg(name, what))
        .at({path, row.number, column + 1});
}

SourceTable readTable(const QString& path)
{
    const QString file = isZip(path) ? tableInZip(path) : path;
    const QByteArray bytes = isSpreadsheet(file) ? QByteArray() : geoData().readFile(file);
    std::vector<TableRow> rows;
    try {
        rows = isSpreadsheet(file) ? geoData().spreadsheetRows(file) : textTableRows(bytes);
    } catch (const RunTimeError& error) {
        throw error.at({path});
    }
    std::erase_if(rows, [](const TableRow& row) { return filledCells(row) == 0; });
    const std::size_t heading = headingRow(rows);
    if (heading + 1 >= rows.size()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("The table has no rows under its headings."))
            .at({path});
    }
    SourceTable table{path, rows[heading].number, rows[heading].cells, {}};
    rows.erase(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(heading) + 1);
    table.rows = std::move(rows);
    cutEmptyColumns(table);
    return table;
}

bool isTableName(const QString& path)
{
    return isText(path) || isSpreadsheet(path) || isZip(path);
}
