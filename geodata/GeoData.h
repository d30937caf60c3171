#pragma once

#include "geodata/BaseLine.h"
#include "geodata/LayerPoints.h"
#include "geodata/Projection.h"
#include "geodata/TextLayer.h"

#include <QByteArray>
#include <QtPlugin>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Chooses by the headings of a table the columns (from 0) whose cells are wanted.
using ColumnChoice = std::function<std::vector<int>(const QStringList& headings)>;

/// What the program has of GDAL and PROJ: tables, layers, archives and projections. Paths are of this machine
/// or lie in a zip ("/vsizip/..."). What cannot be read, written or computed raises with what GDAL says.
class GeoData
{
public:
    struct Versions
    {
        QString gdal;
        QString proj;
    };

    virtual ~GeoData() = default;

    virtual Versions versions() const = 0;

    /// All bytes of a file. Raises file not found, permission denied, and out of memory beyond 256 MiB.
    virtual QByteArray readFile(const QString& path) const = 0;
    virtual bool isFile(const QString& path) const = 0;
    /// Paths of the files in a zip, in its order. Raises type mismatch for a broken zip.
    virtual QStringList filesInZip(const QString& zip) const = 0;

    /// The rows under the headings of a CSV text in UTF-8, whose delimiter is found by the headings. Only the
    /// cells that `choose` asks for are filled. Raises type mismatch for what has no headings, and what
    /// `choose` raises.
    virtual std::vector<TableRow> csvRows(const QByteArray& text, const ColumnChoice& choose) const = 0;
    /// The rows of the first sheet of an XLSX or ODS file that has any, every cell as text; those of the
    /// headings too. Raises type mismatch.
    virtual std::vector<TableRow> spreadsheetRows(const QString& path) const = 0;

    /// The points of all layers in the files. Raises type mismatch, at the file.
    virtual LayerPoints readPoints(const QStringList& files) const = 0;
    /// Whether a file has lines or areas. Raises type mismatch.
    virtual bool holdsLines(const QString& file) const = 0;
    /// The lines of a file's layers as far as they lie in the area; lines of a kind that meet end to end are
    /// joined. Raises file not found, and type mismatch for a file that is no layer.
    virtual std::vector<BaseLine> readLines(const QString& file, const BaseLineArea& area) const = 0;
    /// The bytes of a file with the layer, which is called `name` in it. An empty cell is an attribute
    /// without a value. Raises device I/O error.
    virtual QByteArray writtenLayer(const TextLayer& layer, const QString& name,
                                    LayerFormat format) const = 0;

    /// The line without the points that a person would not miss: none moves by more than `tolerance`.
    virtual QPolygonF simplified(const QPolygonF& line, double tolerance) const = 0;
    /// The way that a pipeline as PROJ takes it describes. Raises invalid procedure call for one that PROJ
    /// does not know.
    virtual std::unique_ptr<Projection> projection(const QString& pipeline) const = 0;
    /// A registered projection such as "EPSG:3857" as PROJ takes it; nothing where there is none of that name
    /// in metres.
    virtual std::optional<QString> registeredProjection(const QString& code) const = 0;
};

Q_DECLARE_INTERFACE(GeoData, "org.varn.GeoData")

/// The one of this program. It is a module of its own (`geodata/gdal/`), which lies beside the programs or
/// among the installed libraries and is loaded when it is first asked for: GDAL brings over a hundred
/// libraries, which no map needs. Raises file not found where it is missing.
const GeoData& geoData();
