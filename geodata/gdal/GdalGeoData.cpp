// The module: hands on to the readers and writers of this room.

#include "geodata/GeoData.h"
#include "geodata/gdal/BaseLines.h"
#include "geodata/gdal/CsvRows.h"
#include "geodata/gdal/GdalLayer.h"
#include "geodata/gdal/LayerWriter.h"
#include "geodata/gdal/PipelineProjection.h"
#include "geodata/gdal/PointReader.h"
#include "geodata/gdal/Spreadsheet.h"

#include <QObject>

#include <cpl_vsi.h>
#include <ogr_srs_api.h>

namespace {

QString projVersion()
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    OSRGetPROJVersion(&major, &minor, &patch);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch);
}

} // namespace

class GdalGeoData : public QObject, public GeoData
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.varn.GeoData")
    Q_INTERFACES(GeoData)

public:
    Versions versions() const override
    {
        return {QString::fromUtf8(GDALVersionInfo("RELEASE_NAME")), projVersion()};
    }

    QByteArray readFile(const QString& path) const override { return readGdalFile(path); }
    bool isFile(const QString& path) const override
    {
        VSIStatBufL status;
        return VSIStatExL(path.toUtf8().constData(), &status, VSI_STAT_EXISTS_FLAG) == 0;
    }
    QStringList filesInZip(const QString& zip) const override { return pathsInZip(zip); }

    std::vector<TableRow> csvRows(const QByteArray& text, const ColumnChoice& choose) const override
    {
        return readCsvRows(text, choose);
    }
    std::vector<TableRow> spreadsheetRows(const QString& path) const override
    {
        return readSpreadsheet(path);
    }

    LayerPoints readPoints(const QStringList& files) const override { return readLayerPoints(files); }
    bool holdsLines(const QString& file) const override { return hasLines(file); }
    std::vector<BaseLine> readLines(const QString& file, const BaseLineArea& area) const override
    {
        return readBaseLines(file, area);
    }
    QByteArray writtenLayer(const TextLayer& layer, const QString& name, LayerFormat format) const override
    {
        return layerBytes(layer, name, format);
    }

    QPolygonF simplified(const QPolygonF& line, double tolerance) const override
    {
        return simplifiedLine(line, tolerance);
    }
    std::unique_ptr<Projection> projection(const QString& pipeline) const override
    {
        return std::make_unique<PipelineProjection>(pipeline);
    }
    std::optional<QString> registeredProjection(const QString& code) const override
    {
        return pipelineOf(code);
    }
};

#include "GdalGeoData.moc"
