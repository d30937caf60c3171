#include "mapdata/MapSearch.h"

#include "mapdata/MapFiles.h"
#include "platform/FileName.h"
#include "platform/Folder.h"

#include <array>
#include <utility>

namespace {

void loadLines(const DriveC& drive, const MapPlace& place, BaseMap& map)
{
    LoadLineData(drive, place.VarnPath, place.VarnMapName, map);
}

void loadLocalities(const DriveC& drive, const MapPlace& place, BaseMap& map)
{
    LoadLocateData(drive, place.VarnPath, place.VarnMapName, map);
}

void loadNames(const DriveC& drive, const MapPlace& place, BaseMap& map)
{
    LoadKanjiData(drive, place.VarnPath, place.VarnMapName, map);
}

constexpr MapPart LocalitiesPart{"Loc.map", loadLocalities};
constexpr std::array<MapPart, 3> MapParts = {
    {{"Line.map", loadLines}, LocalitiesPart, {"kanji.map", loadNames}}};

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
    for (const MapPart& part : MapParts) {
        if (const QString path = part.path(place); !fileExists(drive, path)) {
            missing << path;
        }
    }
    return missing;
}

QString MapPart::path(const MapPlace& place) const
{
    return mapFolder(place.VarnPath, place.VarnMapName) + QLatin1Char('\\') + QLatin1String(fileName);
}

std::span<const MapPart> mapParts()
{
    return MapParts;
}

void loadBaseMap(const DriveC& drive, const MapPlace& place, const QStringList& without, BaseMap& map)
{
    for (const MapPart& part : MapParts) {
        if (!without.contains(part.path(place))) {
            part.load(drive, place, map);
        }
    }
}

void chooseMap(const MapPlace& place, Folders& folders, BaseMap& map)
{
    const DriveC& drive = folders.Drive;
    QStringList without = missingParts(drive, place);
    without.removeAll(LocalitiesPart.path(place));
    BaseMap fresh;
    static_cast<PolygonTable&>(fresh) = map;
    loadBaseMap(drive, place, without, fresh);
    if (fileExists(drive, polygonFile(place.VarnPath))) {
        LoadSquareData(drive, place.VarnPath, fresh);
    }
    map = std::move(fresh);
    folders.VarnPath = place.VarnPath;
    folders.VarnMapName = place.VarnMapName;
    fixLingFolder(folders);
}

void loadLocalityNames(const Folders& folders, BaseMap& map)
{
    LocalityNames& names = map;
    names = {};
    const QString path = localityNamesFile(folders.VarnPath, folders.VarnMapName);
    if (fileExists(folders.Drive, path)) {
        names = readSequentialFile(folders.Drive, path, [&map](SequentialReader& file) {
            return readLocalityNames(file, map.NLocality);
        });
    }
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
