#include "mapdata/MapFiles.h"

#include "platform/Numbers.h"

namespace {

template <typename Points>
void readPoint(SequentialReader& file, Points setCoordinate)
{
    setCoordinate(0, file.readSingle());
    setCoordinate(1, file.readSingle());
}

/// A count kept as a plain number: the records 1 to its whole part follow.
int readPlainCount(SequentialReader& file)
{
    const double count = file.readNumber();
    if (count < 0 || count > std::numeric_limits<int>::max()) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not a count of records.").arg(count));
    }
    return static_cast<int>(count);
}

QString mapFile(const QString& varnPath, const QString& mapName, const QString& name)
{
    return varnPath + QStringLiteral("\\VarnData") + mapName + QStringLiteral("\\Map\\") + name;
}

} // namespace

Localities readLocalities(SequentialReader& file)
{
    Localities map;
    map.NLocality = file.readCount();
    for (int i = 1; i <= map.NLocality; ++i) {
        readPoint(file, [&](int k, float value) { map.LocXY(i, k) = value; });
    }
    return map;
}

MapLines readLines(SequentialReader& file)
{
    MapLines map;
    map.NLine = readPlainCount(file);
    for (int i = 1; i <= map.NLine; ++i) {
        map.LineKind(i) = file.readInteger();
        map.LinePoints(i) = readPlainCount(file);
        map.MapLineColor(i) = file.readInteger();
        map.LineStyle(i) = file.readInteger();
        readPoint(file, [&](int k, float value) { map.LineOffset(i, k) = value; });
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            readPoint(file, [&](int k, float value) { map.LineXY(i, j, k) = value; });
        }
    }
    return map;
}

PlaceNames readPlaceNames(SequentialReader& file)
{
    PlaceNames map;
    map.NKanji = file.readCount();
    const int scaleBar = map.NKanji + 1;
    for (int i = 1; i <= scaleBar; ++i) {
        readPoint(file, [&](int k, float value) { map.KanjiXY(i, k) = value; });
        if (i < scaleBar) {
            map.KanjiText(i) = file.readString();
        }
    }
    map.ScaleLabel = file.readString();
    map.ScaleDivisions = file.readNumber();
    map.ScaleLength = file.readNumber();
    map.HanreiX = map.KanjiXY(1, 0);
    map.HanreiY = toInteger(map.KanjiXY(1, 1));
    return map;
}

PolygonTable readPolygons(SequentialReader& file)
{
    PolygonTable table;
    table.Nsquare = file.readCount();
    for (int k = 1; k <= table.Nsquare; ++k) {
        table.SquareVertices(k) = file.readCount();
        table.SquareCentre(k, 0) = toSingle(file.readNumber());
        table.SquareCentre(k, 1) = file.readSingle();
        table.SquareValue(k) = file.readNumber();
        for (int j = 1; j <= table.SquareVertices(k); ++j) {
            readPoint(file, [&](int c, float value) {
                table.SquareXY(k, j, c) = value - table.SquareCentre(k, c);
            });
        }
    }
    return table;
}

void LoadLocateData(const DriveC& drive, const QString& varnPath, const QString& mapName, Localities& map)
{
    map = readSequentialFile(drive, mapFile(varnPath, mapName, QStringLiteral("Loc.map")), readLocalities);
}

void LoadLineData(const DriveC& drive, const QString& varnPath, const QString& mapName, MapLines& map)
{
    map = readSequentialFile(drive, mapFile(varnPath, mapName, QStringLiteral("Line.map")), readLines);
}

void LoadKanjiData(const DriveC& drive, const QString& varnPath, const QString& mapName, PlaceNames& map)
{
    map = readSequentialFile(drive, mapFile(varnPath, mapName, QStringLiteral("kanji.map")), readPlaceNames);
}

void LoadSquareData(const DriveC& drive, const QString& varnPath, PolygonTable& table)
{
    table = readSequentialFile(drive, varnPath + QStringLiteral("\\VarnData\\Square.sbl"), readPolygons);
}
