#pragma once

#include <QByteArray>
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

/// The bytes of a file with the layer, which is called `name` in it. An empty cell is an attribute without a
/// value. Raises device I/O error, with what GDAL says.
QByteArray writtenLayer(const TextLayer& layer, const QString& name, LayerFormat format);
