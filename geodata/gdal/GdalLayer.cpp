#include "geodata/gdal/GdalLayer.h"

#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <QFileInfo>
#include <QStringList>

#include <bit>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <utility>
#include <vector>

GdalDataset openDataset(const QString& path, std::initializer_list<const char*> drivers)
{
    const GdalScope scope;
    std::vector<const char*> allowed(drivers);
    allowed.push_back(nullptr);
    GdalDataset dataset(GDALDataset::Open(path.toUtf8().constData(),
                                          GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
                                          drivers.size() == 0 ? nullptr : allowed.data()));
    if (!dataset || dataset->GetLayerCount() == 0) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It is no table or layer that can be read. ") + gdalError())
            .at({path});
    }
    return dataset;
}

std::unique_ptr<OGRCoordinateTransformation> wayToDegrees(const OGRSpatialReference& system)
{
    OGRSpatialReference own = system;
    own.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference degrees;
    degrees.SetWellKnownGeogCS("WGS84");
    degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return std::unique_ptr<OGRCoordinateTransformation>(
        own.IsSame(&degrees) ? nullptr : OGRCreateCoordinateTransformation(&own, &degrees));
}

MemoryFile::MemoryFile(const QString& name, QByteArray bytes)
    : m_bytes(std::move(bytes)),
      m_path(QStringLiteral("/vsimem/varn-%1/%2").arg(std::bit_cast<quintptr>(this)).arg(name))
{
    VSIFCloseL(VSIFileFromMemBuffer(m_path.toUtf8().constData(), reinterpret_cast<GByte*>(m_bytes.data()),
                                    static_cast<vsi_l_offset>(m_bytes.size()), FALSE));
}

MemoryFile::~MemoryFile()
{
    VSIUnlink(m_path.toUtf8().constData());
}

QByteArray readGdalFile(const QString& path)
{
    constexpr GIntBig Largest = GIntBig{256} * 1024 * 1024;

    const GdalScope scope;
    GByte* data = nullptr;
    vsi_l_offset size = 0;
    if (VSIIngestFile(nullptr, path.toUtf8().constData(), &data, &size, Largest) == FALSE) {
        const bool there = QFileInfo::exists(path);
        throw RunTimeError(there ? ErrorNumber::PermissionDenied : ErrorNumber::FileNotFound, gdalError())
            .at({path});
    }
    const std::unique_ptr<GByte, decltype(&VSIFree)> owner(data, &VSIFree);
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

QStringList pathsInZip(const QString& zip)
{
    const GdalScope scope;
    const QString root = QStringLiteral("/vsizip/") + zip;
    const CPLStringList names(VSIReadDirRecursive(root.toUtf8().constData()));
    if (names.empty()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It is no zip, or it is broken or empty."))
            .at({zip});
    }
    QStringList paths;
    for (int i = 0; i < names.size(); ++i) {
        const char* name = names[i];
        if (!QByteArrayView(name).endsWith('/')) {
            paths << root + QLatin1Char('/') + QString::fromUtf8(name);
        }
    }
    return paths;
}
