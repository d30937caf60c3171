#include "geodata/gdal/GdalScope.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <gdal.h>

namespace {

bool registerDrivers()
{
    CPLSetConfigOption("CPL_DEBUG", "OFF");
    GDALAllRegister();
    return true;
}

} // namespace

GdalScope::GdalScope()
{
    CPLPushErrorHandler(CPLQuietErrorHandler);
    CPLErrorReset();
    [[maybe_unused]] static const bool registered = registerDrivers(); // once a program
}

GdalScope::~GdalScope()
{
    CPLPopErrorHandler();
}

QString gdalError()
{
    return QString::fromUtf8(CPLGetLastErrorMsg());
}
