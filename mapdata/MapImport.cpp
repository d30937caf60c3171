#include "mapdata/MapImport.h"

#include "mapdata/MapFiles.h"
#include "platform/Numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// The columns of a table's line, blanks and quotes around them taken off.
QStringList columnsOf(const QString& line)
{
    QStringList columns;
    for (const char separator : {';', '\t', ','}) {
        if (line.contains(QLatin1Char(separator))) {
            columns = line.split(QLatin1Char(separator));
            break;
        }
    }
    if (columns.isEmpty()) {
        columns = line.simplified().split(QLatin1Char(' '));
    }
    for (QString& column : columns) {
        column = column.remove(QLatin1Char('"')).trimmed();
    }
    return columns;
}

std::optional<double> numberIn(const QStringList& columns, int column)
{
    bool isNumber = false;
    const double value = column < columns.size() ? columns[column].toDouble(&isNumber) : 0;
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// The coordinate in a column: 0 x, 1 y.
float coordinate(const QStringList& columns, int column)
{
    if (column >= columns.size()) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("The line has no y."));
    }
    const std::optional<double> value = numberIn(columns, column);
    if (!value) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("\"%1\" is not a number.").arg(columns[column].left(40)));
    }
    return toSingle(*value);
}

void addLocality(const QStringList& columns, const FilePlace& line, Localities& map)
{
    const int i = map.NLocality + 1;
    FilePlace place = line;
    try {
        for (int column = 0; column <= 1; ++column) {
            float& target = map.LocXY(i, column);
            place.field = column + 1;
            target = coordinate(columns, column);
        }
    } catch (const RunTimeError& error) {
        throw error.at(place);
    }
    map.NLocality = static_cast<qint16>(i);
}

Localities localitiesOfTable(const QStringList& lines, const QString& path)
{
    Localities map;
    bool first = true;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (lines[line].trimmed().isEmpty()) {
            continue;
        }
        const QStringList columns = columnsOf(lines[line]);
        const bool heading = first && !numberIn(columns, 0) && !numberIn(columns, 1);
        first = false;
        if (heading) {
            continue;
        }
        addLocality(columns, {path, static_cast<int>(line + 1)}, map);
    }
    if (map.NLocality == 0) {
        throw RunTimeError(ErrorNumber::InputPastEndOfFile, QStringLiteral("The file has no localities."))
            .at({path, static_cast<int>(lines.size())});
    }
    return map;
}

/// Whether a file's first line that is not empty has a number alone.
bool beginsWithCount(const QStringList& lines)
{
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [](const QString& line) { return !line.trimmed().isEmpty(); });
    if (first == lines.end()) {
        return false;
    }
    const QStringList columns = columnsOf(*first);
    const auto isEmpty = [](const QString& column) { return column.isEmpty(); };
    return numberIn(columns, 0) && std::all_of(columns.begin() + 1, columns.end(), isEmpty);
}

} // namespace

Localities importLocalities(const DriveC& drive, const QString& path)
{
    const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    const QStringList lines = readTextFile(drive, path).split(lineEnd);
    return beginsWithCount(lines) ? readSequentialFile(drive, path, readLocalities)
                                  : localitiesOfTable(lines, path);
}
