#include "mapdata/MapSearch.h"

#include "mapdata/MapFiles.h"
#include "shell/MapChoice.h"

#include <utility>

std::optional<MapPlace> mapPlaceOf(const QString& path)
{
    const QString dataPart = QStringLiteral("\\VarnData\\");
    const qsizetype found = path.indexOf(dataPart, 0, Qt::CaseInsensitive);
    const qsizetype name = found + dataPart.size();
    const qsizetype end = path.indexOf(QLatin1Char('\\'), name);
    if (found < 0 || end <= name) {
        return std::nullopt;
    }
    return MapPlace{path.left(found), QLatin1Char('\\') + path.mid(name, end - name)};
}

void chooseMap(const MapPlace& place, VarnModule& varn)
{
    BaseMap fresh;
    static_cast<PolygonTable&>(fresh) = varn;
    LoadLineData(varn.Drive, place.VarnPath, place.VarnMapName, fresh);
    LoadLocateData(varn.Drive, place.VarnPath, place.VarnMapName, fresh);
    LoadKanjiData(varn.Drive, place.VarnPath, place.VarnMapName, fresh);
    if (fileExists(varn.Drive, polygonFile(place.VarnPath))) {
        LoadSquareData(varn.Drive, place.VarnPath, fresh);
    }
    static_cast<BaseMap&>(varn) = std::move(fresh);
    varn.VarnPath = place.VarnPath;
    varn.VarnMapName = place.VarnMapName;
    fixLingFolder(varn);
}
