#pragma once

#include "exchange/SourceSurvey.h"
#include "exchange/TableColumns.h"

#include <optional>

/// Where the locality of a row lies; nothing where its cells are empty. Raises type mismatch, at the row and
/// the column, for a cell that holds no number and for degrees beyond what the Earth has.
std::optional<QPointF> placeIn(const SourceTable& table, const TableColumns& columns, const TableRow& row);

/// Localities with their places.
struct PlacedLocalities
{
    std::vector<SourceLocality> localities;
    bool plane = false;
    /// How many columns or attributes they come with beyond name and place.
    int otherColumns = 0;
    /// The file, where it brings lines for the base map, too.
    QStringList baseMapLayers;
};

/// Reads the localities from a table, a point layer or a KML. Raises type mismatch where it has no columns of
/// places, and what reading raises.
PlacedLocalities readPlacedLocalities(const QString& path, const QMap<QString, ColumnRole>& corrections,
                                      ImportReport& report);

/// Looks in the folder of `table` for a file that places the localities that `keys` name; nothing where no
/// file there places half of them. Of two that place as many it is the one that holds less else.
std::optional<QString> findLocalitiesBeside(const QString& table, const QStringList& keys);
