#include "mapdata/MapSearch.h"

#include "mapdata/MapFiles.h"
#include "platform/FileName.h"
#include "platform/Folder.h"

#include <utility>

namespace {

QString partPath(const MapPlace& place, const QString& name)
{
    return mapFolder(place.VarnPath, place.VarnMapName) + QLatin1Char('\\') + name;
}

} // namespace

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

QStringList missingParts(const DriveC& drive, const MapPlace& place)
{
    QStringList missing;
    for (const char* name : {"Line.map", "Loc.map", "kanji.map"}) {
        if (const QString path = partPath(place, QLatin1String(name)); !fileExists(drive, path)) {
            missing << path;
        }
    }
    return missing;
}

void chooseMap(const MapPlace& place, Folders& folders, BaseMap& map)
{
    const DriveC& drive = folders.Drive;
    const QStringList missing = missingParts(drive, place);
    BaseMap fresh;
    static_cast<PolygonTable&>(fresh) = map;
    LoadLocateData(drive, place.VarnPath, place.VarnMapName, fresh);
    if (!missing.contains(partPath(place, QStringLiteral("Line.map")))) {
        LoadLineData(drive, place.VarnPath, place.VarnMapName, fresh);
    }
    if (!missing.contains(partPath(place, QStringLiteral("kanji.map")))) {
        LoadKanjiData(drive, place.VarnPath, place.VarnMapName, fresh);
    }
    if (fileExists(drive, polygonFile(place.VarnPath))) {
        LoadSquareData(drive, place.VarnPath, fresh);
    }
    map = std::move(fresh);
    folders.VarnPath = place.VarnPath;
    folders.VarnMapName = place.VarnMapName;
    fixLingFolder(folders);
}

void makeMap(const Folders& folders)
{
    const QString name = folders.VarnMapName.mid(1);
    if (name.trimmed().isEmpty() || !isFileName(name)) {
        throw RunTimeError(ErrorNumber::BadFileName, name);
    }
    makeFolder(folders.Drive, mapFolder(folders.VarnPath, folders.VarnMapName));
    makeFolder(folders.Drive, folders.dataFolder());
}
