#include "geodata/gdal/LayerWriter.h"

#include "geodata/gdal/GdalLayer.h"
#include "platform/RunTimeError.h"

#include <bit>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <ogrsf_frmts.h>
#include <optional>

namespace {

struct FormatRow
{
    const char* driver;
    const char* ending;
    CPLStringList options;
};

FormatRow rowOf(LayerFormat format)
{
    FormatRow row{"CSV", ".csv", {}};
    switch (format) {
    case LayerFormat::Csv:
        row.options.SetNameValue("STRING_QUOTING", "IF_NEEDED");
        break;
    case LayerFormat::GeoJson:
        row = {"GeoJSON", ".geojson", {}};
        row.options.SetNameValue("COORDINATE_PRECISION", "15");
        break;
    case LayerFormat::GeoPackage:
        row = {"GPKG", ".gpkg", {}};
        // The file's own columns, which no item may be called.
        row.options.SetNameValue("FID", "varn_feature");
        row.options.SetNameValue("GEOMETRY_NAME", "varn_point");
        break;
    }
    return row;
}

/// A file that GDAL writes in memory; gone with this.
class WrittenFile
{
public:
    explicit WrittenFile(const char* ending)
        : m_path(QStringLiteral("/vsimem/varn-%1%2")
                     .arg(std::bit_cast<quintptr>(this))
                     .arg(QLatin1String(ending))
                     .toUtf8())
    {}
    ~WrittenFile() { VSIUnlink(m_path.constData()); }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;

    const char* path() const { return m_path.constData(); }
    QByteArray bytes() const { return readGdalFile(QString::fromUtf8(m_path)); }

private:
    QByteArray m_path;
};

void require(bool done)
{
    if (!done) {
        throw RunTimeError(ErrorNumber::DeviceIOError, gdalError());
    }
}

OGRSpatialReference systemOf(const TextLayer& layer)
{
    OGRSpatialReference system;
    if (layer.system == TextLayer::System::Degrees) {
        system.SetWellKnownGeogCS("WGS84");
    } else {
        system.SetLocalCS("Undefined Cartesian SRS");
    }
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

OGRLayer& addLayer(GDALDataset& file, const TextLayer& layer, const QString& name, FormatRow& row)
{
    OGRSpatialReference system = systemOf(layer);
    const bool isTable = layer.places.empty();
    OGRLayer* added = file.CreateLayer(name.toUtf8().constData(), isTable ? nullptr : &system,
                                       isTable ? wkbNone : wkbPoint, row.options.List());
    require(added != nullptr);
    for (const QString& heading : layer.headings) {
        OGRFieldDefn field(heading.toUtf8().constData(), OFTString);
        require(added->CreateField(&field) == OGRERR_NONE);
    }
    return *added;
}

void addRow(OGRLayer& layer, const QStringList& cells, const std::optional<QPointF>& place)
{
    OGRFeature feature(layer.GetLayerDefn());
    for (int column = 0; column < cells.size(); ++column) {
        if (!cells[column].isEmpty()) {
            feature.SetField(column, cells[column].toUtf8().constData());
        }
    }
    if (place) {
        const OGRPoint point(place->x(), place->y());
        require(feature.SetGeometry(&point) == OGRERR_NONE);
    }
    require(layer.CreateFeature(&feature) == OGRERR_NONE);
}

} // namespace

QByteArray layerBytes(const TextLayer& layer, const QString& name, LayerFormat format)
{
    const GdalScope scope;
    FormatRow row = rowOf(format);
    const WrittenFile written(row.ending);
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(row.driver);
    require(driver != nullptr);
    GdalDataset file(driver->Create(written.path(), 0, 0, 0, GDT_Unknown, nullptr));
    require(file != nullptr);
    OGRLayer& added = addLayer(*file, layer, name, row);
    require(added.StartTransaction() == OGRERR_NONE);
    for (std::size_t i = 0; i < layer.rows.size(); ++i) {
        addRow(added, layer.rows[i], layer.places.empty() ? std::nullopt : std::optional(layer.places[i]));
    }
    require(added.CommitTransaction() == OGRERR_NONE);
    file.reset();
    return written.bytes();
}
