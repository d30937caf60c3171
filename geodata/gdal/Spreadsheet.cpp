#include "geodata/gdal/Spreadsheet.h"

#include "geodata/gdal/GdalLayer.h"

#include <array>
#include <cpl_conv.h>
#include <ogrsf_frmts.h>
#include <utility>

namespace {

std::vector<TableRow> sheetRows(OGRLayer& sheet)
{
    std::vector<TableRow> rows;
    for (const OGRFeatureUniquePtr& feature : sheet) {
        TableRow row{static_cast<int>(feature->GetFID()), {}};
        for (int column = 0; column < feature->GetFieldCount(); ++column) {
            row.cells << QString::fromUtf8(feature->GetFieldAsString(column)).trimmed();
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

std::vector<TableRow> readSpreadsheet(const QString& path)
{
    constexpr std::array settings = {
        std::pair("OGR_XLSX_HEADERS", "DISABLE"), std::pair("OGR_ODS_HEADERS", "DISABLE"),
        std::pair("OGR_XLSX_FIELD_TYPES", "STRING"), std::pair("OGR_ODS_FIELD_TYPES", "STRING")};
    std::vector<std::unique_ptr<CPLConfigOptionSetter>> set;
    set.reserve(settings.size());
    for (const auto& [key, value] : settings) {
        set.push_back(std::make_unique<CPLConfigOptionSetter>(key, value, false));
    }
    const GdalDataset book = openDataset(path, {"XLSX", "ODS"});
    for (OGRLayer* sheet : book->GetLayers()) {
        if (std::vector<TableRow> rows = sheetRows(*sheet); !rows.empty()) {
            return rows;
        }
    }
    return {};
}
