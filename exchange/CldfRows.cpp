#include "exchange/CldfRows.h"

#include "geodata/GeoData.h"

#include <QUtf8StringView>

#include <algorithm>

namespace {

/// The row of the first line that is no UTF-8; 0 where all are.
int foreignRow(const QByteArray& bytes)
{
    if (QUtf8StringView(bytes).isValidUtf8()) {
        return 0;
    }
    int row = 1;
    for (const QByteArray& line : bytes.split('\n')) {
        if (!QUtf8StringView(line).isValidUtf8()) {
            break;
        }
        ++row;
    }
    return row;
}

/// The bytes of a table that can be parted into rows without loss.
QByteArray soundBytes(const CldfTable& table)
{
    QByteArray bytes;
    try {
        bytes = geoData().readFile(table.path);
    } catch (const RunTimeError& error) {
        throw error.during(QStringLiteral("The metadata name this file as the %1.").arg(table.term));
    }
    if (const int row = foreignRow(bytes); row > 0) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It is not UTF-8, as tables of CLDF are. Save it as UTF-8."))
            .at({table.path, row});
    }
    if (bytes.count('"') % 2 != 0) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("A quotation mark is not closed. In a cell it is written twice, and "
                           "the cell stands in quotation marks."))
            .at({table.path});
    }
    return bytes;
}

void requireTerm(const CldfTable& table, const char* term)
{
    if (!table.find(QLatin1String(term))) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("No column of the %1 means \"%2\". Give the column this term in the metadata.")
                .arg(table.term, QLatin1String(term)))
            .at({table.path});
    }
}

} // namespace

CldfRows::CldfRows(const CldfTable& table, std::initializer_list<const char*> required,
                   std::initializer_list<const char*> optional)
{
    m_table = {table.path, 1, {}, {}};
    const auto choose = [&](const QStringList& headings) {
        m_table.headings = headings;
        return addColumns(table, required, optional);
    };
    const QByteArray bytes = soundBytes(table);
    try {
        m_table.rows = geoData().csvRows(bytes, choose);
    } catch (const RunTimeError& error) {
        throw error.hasPlace() ? error : error.at({table.path});
    }
}

std::vector<int> CldfRows::addColumns(const CldfTable& table, std::initializer_list<const char*> required,
                                      std::initializer_list<const char*> optional)
{
    for (const char* term : required) {
        requireTerm(table, term);
        addColumn(table, term);
    }
    for (const char* term : optional) {
        if (table.find(QLatin1String(term))) {
            addColumn(table, term);
        }
    }
    std::vector<int> numbers;
    for (const Column& column : m_columns) {
        numbers.push_back(column.number);
    }
    return numbers;
}

void CldfRows::addColumn(const CldfTable& table, const char* term)
{
    const CldfColumn& column = *table.find(QLatin1String(term));
    const auto number = static_cast<int>(m_table.headings.indexOf(column.name));
    if (number < 0) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It has no column \"%1\", which the metadata name. There are: %2.")
                               .arg(column.name, m_table.headings.join(QStringLiteral(", "))))
            .at({table.path, 1});
    }
    m_columns.push_back({term, column, number});
}

const CldfRows::Column* CldfRows::find(std::string_view term) const
{
    const auto found = std::ranges::find(m_columns, term, &Column::term);
    return found == m_columns.end() ? nullptr : &*found;
}

QString CldfRows::cell(const TableRow& row, std::string_view term) const
{
    const Column* column = find(term);
    const QString text = column ? row.cells[column->number] : QString();
    return column && column->column.nulls.contains(text) ? QString() : text;
}

QStringList CldfRows::values(const TableRow& row, std::string_view term) const
{
    const QString text = cell(row, term);
    const Column* column = find(term);
    const bool isList = column && !column->column.separator.isEmpty();
    return isList ? text.split(column->column.separator, Qt::SkipEmptyParts) : QStringList(text);
}

RunTimeError CldfRows::errorAt(const TableRow& row, std::string_view term, const QString& what) const
{
    const Column* column = find(term);
    return m_table.errorAt(row, column ? column->number : 0, what);
}
