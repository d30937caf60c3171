#include "exchange/TablePlaces.h"

#include "exchange/Degrees.h"
#include "exchange/LayerFiles.h"
#include "exchange/LayerTable.h"
#include "exchange/LocalityIndex.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

struct Axis
{
    ColumnRole role;
    double largest;
    const char* name;
};

constexpr Axis East{ColumnRole::Longitude, 360, "longitude"};
constexpr Axis North{ColumnRole::Latitude, 90, "latitude"};

std::optional<double> degreesIn(const SourceTable& table, const TableColumns& columns, const TableRow& row,
                                const Axis& axis)
{
    const int column = *columns.find(axis.role);
    const QString& cell = row.cells[column];
    if (cell.isEmpty()) {
        return std::nullopt;
    }
    const std::optional<double> value = degrees(cell);
    if (!value) {
        throw table.errorAt(row, column,
                            QStringLiteral("\"%1\" is no %2. Write degrees such as 5.187, 5,187 or 5°11′S.")
                                .arg(cell, QLatin1String(axis.name)));
    }
    if (std::abs(*value) > axis.largest) {
        throw table.errorAt(
            row, column,
            QStringLiteral("%1 is beyond every %2. Are longitude and latitude swapped, or are these "
                           "no degrees (then call the columns x and y)?")
                .arg(cell, QLatin1String(axis.name)));
    }
    return value;
}

std::optional<double> coordinateIn(const SourceTable& table, const TableColumns& columns, const TableRow& row,
                                   ColumnRole role)
{
    const int column = *columns.find(role);
    const QString& cell = row.cells[column];
    const std::optional<double> value = decimalNumber(cell);
    if (!value && !cell.isEmpty()) {
        throw table.errorAt(row, column, QStringLiteral("\"%1\" is no number.").arg(cell));
    }
    return value;
}

/// 180 to 360 degrees east are so many less west.
double turned(double longitude)
{
    return longitude > 180 ? longitude - 360 : longitude;
}

QString nameIn(const TableColumns& columns, const TableRow& row)
{
    const std::optional<int> name = columns.find(ColumnRole::Name);
    return row.cells[name ? *name : *columns.key()];
}

PlacedLocalities placedInTable(const SourceTable& table, const TableColumns& columns, ImportReport& report)
{
    PlacedLocalities placed;
    placed.plane = !columns.hasDegrees();
    placed.otherColumns = columns.count();
    for (const TableRow& row : table.rows) {
        const QString key = row.cells[*columns.key()];
        if (const std::optional<QPointF> place = placeIn(table, columns, row); place && !key.isEmpty()) {
            placed.localities.push_back({key, nameIn(columns, row), *place});
        } else {
            report.leaveOut(QStringLiteral("localities without a name or without coordinates"),
                            key.isEmpty() ? QStringLiteral("row %1").arg(row.number) : key);
        }
    }
    return placed;
}

/// How well a file places localities: how many of them, and how much else it holds.
struct Candidate
{
    QString path;
    int placed = 0;
    int otherColumns = 0;
};

Candidate tryLocalities(const QString& path, const QStringList& keys)
{
    Candidate candidate{path, 0, 0};
    try {
        ImportReport unheard;
        const PlacedLocalities localities = readPlacedLocalities(path, {}, unheard);
        const LocalityIndex index(localities.localities);
        candidate.placed = static_cast<int>(
            std::ranges::count_if(keys, [&](const QString& key) { return index.find(key).has_value(); }));
        candidate.otherColumns = localities.otherColumns;
    } catch (const RunTimeError&) {
        candidate.placed = 0; // it does not hold these localities
    }
    return candidate;
}

/// The other files in the folder that can hold localities, layers first.
QStringList filesBeside(const QString& table)
{
    QStringList layers;
    QStringList tables;
    for (const QFileInfo& file : QFileInfo(table).dir().entryInfoList(QDir::Files, QDir::Name)) {
        if (file == QFileInfo(table)) {
            continue;
        }
        const QString path = file.filePath();
        if (isLayer(path)) {
            layers << path;
        } else if (isTableName(path)) {
            tables << path;
        }
    }
    return layers + tables;
}

} // namespace

std::optional<QPointF> placeIn(const SourceTable& table, const TableColumns& columns, const TableRow& row)
{
    const bool inDegrees = columns.hasDegrees();
    const std::optional<double> x =
        inDegrees ? degreesIn(table, columns, row, East) : coordinateIn(table, columns, row, ColumnRole::X);
    const std::optional<double> y =
        inDegrees ? degreesIn(table, columns, row, North) : coordinateIn(table, columns, row, ColumnRole::Y);
    if (!x || !y) {
        return std::nullopt;
    }
    return QPointF(inDegrees ? turned(*x) : *x, *y);
}

PlacedLocalities readPlacedLocalities(const QString& path, const QMap<QString, ColumnRole>& corrections,
                                      ImportReport& report)
{
    const bool layer = isLayer(path);
    const SourceTable table = layer ? readLayerTable(path) : readTable(path);
    const TableColumns columns = guessColumns(table, corrections);
    if (!columns.hasPlaces()) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("No columns hold longitude and latitude, or x and y. There are: %1.")
                .arg(table.headings.join(QStringLiteral(", "))))
            .at({path, table.headingRow});
    }
    PlacedLocalities placed = placedInTable(table, columns, report);
    placed.baseMapLayers = layer ? baseMapLayersOf(path) : QStringList();
    return placed;
}

std::optional<QString> findLocalitiesBeside(const QString& table, const QStringList& keys)
{
    std::optional<Candidate> best;
    for (const QString& path : filesBeside(table)) {
        const Candidate candidate = tryLocalities(path, keys);
        const auto order = [](const Candidate& each) { return std::tuple(-each.placed, each.otherColumns); };
        if (2 * candidate.placed >= keys.size() && (!best || order(candidate) < order(*best))) {
            best = candidate;
        }
        if (best && isLayer(path) && best->placed == keys.size()) {
            break;
        }
    }
    return best ? std::optional(best->path) : std::nullopt;
}
