#include "exchange/LayerTable.h"

#include "exchange/Degrees.h"
#include "exchange/KnownHeadings.h"
#include "exchange/LayerFiles.h"
#include "geodata/GeoData.h"

#include <algorithm>
#include <cmath>

namespace {

/// Coordinates without a reference system are degrees where all of them can be. With one they are, but
/// GeoJSON cannot say that its coordinates are no degrees: then most lie beyond all degrees.
bool areDegrees(const LayerPoints& points)
{
    const auto lieWithin = [&points](double east, double north) {
        return std::ranges::count_if(points.places, [=](QPointF place) {
            return std::abs(place.x()) <= east && std::abs(place.y()) <= north;
        });
    };
    const auto count = std::ssize(points.places);
    return points.isKnown ? 2 * lieWithin(360, 360) >= count : lieWithin(180, 90) == count;
}

/// Every feature of some formats has the attributes of the format, which mostly nobody fills; and numbers
/// under a heading such as "x" repeat where the point lies.
bool isNeedless(const LayerPoints& points, qsizetype column)
{
    const auto role = knownRole(points.attributes[column]);
    const bool mayRepeat = role && isPlace(*role);
    return (points.hasFormatAttributes || mayRepeat) &&
           std::ranges::all_of(points.rows, [=](const TableRow& row) {
               const QString& cell = row.cells[column];
               return cell.isEmpty() || (mayRepeat && degrees(cell));
           });
}

void cutNeedlessColumns(LayerPoints& points)
{
    for (qsizetype column = points.attributes.size() - 1; column >= 0; --column) {
        if (isNeedless(points, column)) {
            points.attributes.removeAt(column);
            for (TableRow& row : points.rows) {
                row.cells.removeAt(column);
            }
        }
    }
}

/// Puts where the points lie into two last columns.
void addPlaces(LayerPoints& points)
{
    points.attributes << (areDegrees(points)
                              ? QStringList{QStringLiteral("longitude"), QStringLiteral("latitude")}
                              : QStringList{QStringLiteral("x"), QStringLiteral("y")});
    for (std::size_t i = 0; i < points.places.size(); ++i) {
        for (const double coordinate : {points.places[i].x(), points.places[i].y()}) {
            points.rows[i].cells << coordinateText(coordinate);
        }
    }
}

} // namespace

SourceTable readLayerTable(const QString& path)
{
    LayerPoints points = geoData().readPoints(layerFiles(path));
    if (points.rows.empty()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It has no points, and so no localities."))
            .at({path});
    }
    cutNeedlessColumns(points);
    addPlaces(points);
    return {path, 0, std::move(points.attributes), std::move(points.rows)};
}
