#pragma once

#include <QString>

/// While it lives, GDAL has its drivers and prints nothing. What went wrong is asked of `gdalError`.
class GdalScope
{
public:
    GdalScope();
    ~GdalScope();
    GdalScope(const GdalScope&) = delete;
    GdalScope& operator=(const GdalScope&) = delete;
};

/// What GDAL said last of something that failed.
QString gdalError();
