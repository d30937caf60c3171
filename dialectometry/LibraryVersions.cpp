#include "dialectometry/LibraryVersions.h"

#include <Eigen/Core>
#include <geos_c.h>

QString geosVersion()
{
    // "3.11.1-CAPI-1.17.1"
    return QString::fromLatin1(GEOSversion()).section(u'-', 0, 0);
}

QString eigenVersion()
{
    return QStringLiteral("%1.%2.%3")
        .arg(EIGEN_WORLD_VERSION)
        .arg(EIGEN_MAJOR_VERSION)
        .arg(EIGEN_MINOR_VERSION);
}
