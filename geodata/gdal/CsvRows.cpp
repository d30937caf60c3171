#include "geodata/gdal/CsvRows.h"

#include "geodata/gdal/GdalLayer.h"
#include "platform/RunTimeError.h"

#include <array>
#include <cpl_conv.h>
#include <cpl_string.h>
#include <ogrsf_frmts.h>

namespace {

GdalDataset openCsv(const MemoryFile& file)
{
    CPLStringList options;
    options.SetNameValue("HEADERS", "YES");
    constexpr std::array<const char*, 2> Drivers{"CSV", nullptr};
    GdalDataset dataset(GDALDataset::Open(file.path().toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY,
                                          Drivers.data(), options.List()));
    if (!dataset || dataset->GetLayerCount() == 0) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It is empty, or no table with headings. ") + gdalError());
    }
    return dataset;
}

QStringList headingsOf(OGRLayer& layer)
{
    QStringList headings;
    const OGRFeatureDefn& row = *layer.GetLayerDefn();
    for (int column = 0; column < row.GetFieldCount(); ++column) {
        headings << QString::fromUtf8(row.GetFieldDefn(column)->GetNameRef());
    }
    return headings;
}

} // namespace

std::vector<TableRow> readCsvRows(const QByteArray& text, const ColumnChoice& choose)
{
    const GdalScope scope;
    const CPLConfigOptionSetter anyWidth("OGR_CSV_MAX_FIELD_COUNT", "100000", false);
    const MemoryFile file(QStringLiteral("table.csv"), text);
    const GdalDataset dataset = openCsv(file);
    OGRLayer& layer = *dataset->GetLayer(0);
    const QStringList headings = headingsOf(layer);
    const std::vector<int> columns = choose(headings);
    std::vector<TableRow> rows;
    for (const OGRFeatureUniquePtr& feature : layer) {
        TableRow row{static_cast<int>(feature->GetFID()) + 1, QStringList(headings.size())};
        for (const int column : columns) {
            row.cells[column] = QString::fromUtf8(feature->GetFieldAsString(column));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}
