#pragma once

#include <QPointF>
#include <QStringList>

#include <vector>

/// Rows of texts under headings, to be written as a table or as a layer of points.
struct TextLayer
{
    enum class System { Degrees, Plane };

    QStringList headings;
    std::vector<QStringList> rows;
    /// Where the rows lie; empty for a table.
    std::vector<QPointF> places;
    System system = System::Degrees;
};

/// The files that layers are written as.
enum class LayerFormat { Csv, GeoJson, GeoPackage };
