#include "exchange/LayerFiles.h"

#include "exchange/CldfSource.h"
#include "geodata/GeoData.h"
#include "platform/RunTimeError.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array Endings{".kml", ".kmz", ".geojson", ".json", ".gpkg", ".shp", ".gpx"};

bool hasLayerEnding(const QString& path)
{
    return std::ranges::any_of(Endings, [&path](const char* ending) {
        return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    });
}

bool isZip(const QString& path)
{
    return path.endsWith(QLatin1String(".zip"), Qt::CaseInsensitive);
}

bool isCldfOrBroken(const QString& path)
{
    try {
        return isCldf(path);
    } catch (const RunTimeError&) {
        return true;
    }
}

bool holdsLayer(const QString& zip)
{
    try {
        return !layerFiles(zip).isEmpty();
    } catch (const RunTimeError&) {
        return false; // a broken zip holds nothing
    }
}

} // namespace

bool isLayer(const QString& path)
{
    const bool layer = isZip(path) ? holdsLayer(path) : hasLayerEnding(path);
    const bool mayBeCldf = isZip(path) || path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    return layer && !(mayBeCldf && isCldfOrBroken(path));
}

QStringList layerFiles(const QString& path)
{
    if (!isZip(path)) {
        return {path};
    }
    QStringList files = geoData().filesInZip(path);
    files.removeIf([](const QString& file) { return !hasLayerEnding(file); });
    return files;
}

QStringList baseMapLayersOf(const QString& path)
{
    QStringList files = layerFiles(path);
    files.removeIf([](const QString& file) { return !geoData().holdsLines(file); });
    return files;
}
