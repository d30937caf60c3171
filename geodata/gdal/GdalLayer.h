#pragma once

#include "geodata/gdal/GdalScope.h"

#include <QByteArray>
#include <QString>

#include <gdal_priv.h>
#include <initializer_list>
#include <memory>
#include <ogr_spatialref.h>

// What the readers of this room share.

/// Closes the data set.
struct CloseDataset
{
    void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using GdalDataset = std::unique_ptr<GDALDataset, CloseDataset>;

/// Opens tables or layers for reading, with one of `drivers` or with any. Raises type mismatch, with what
/// GDAL says, at `path`.
GdalDataset openDataset(const QString& path, std::initializer_list<const char*> drivers = {});

/// The way from a reference system to degrees east and north (WGS 84); nothing where it has them already, or
/// where PROJ knows no way.
std::unique_ptr<OGRCoordinateTransformation> wayToDegrees(const OGRSpatialReference& system);

/// Bytes that GDAL reads as a file, while this lives.
class MemoryFile
{
public:
    MemoryFile(const QString& name, QByteArray bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    const QString& path() const { return m_path; }

private:
    QByteArray m_bytes;
    QString m_path;
};

/// All bytes of a file, which may lie in a zip ("/vsizip/..."). Raises file not found, permission denied, and
/// out of memory beyond 256 MiB.
QByteArray readGdalFile(const QString& path);

/// Paths of the files in a zip, in its order, as GDAL opens them. Raises type mismatch for a broken zip.
QStringList pathsInZip(const QString& zip);
