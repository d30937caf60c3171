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

/// The number of divisions of a scale bar, whole or not, as it stands in the file.
double readDivisions(SequentialReader& file)
{
    constexpr double MostDivisions = 1000; // on any map, more ticks than that are one black bar
    const double divisions = file.readNumber();
    if (divisions > MostDivisions) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("A scale bar has at most %1 divisions, not %2.")
                               .arg(MostDivisions)
                               .arg(divisions));
    }
    return divisions;
}

/// Makes the vertices relative to the reference points.
void makeRelative(PolygonTable& table)
{
    for (int k = 1; k <= table.Nsquare; ++k) {
        for (int j = 1; j <= table.SquareVertices(k); ++j) {
            for (int c = 0; c <= 1; ++c) {
                table.SquareXY(k, j, c) -= table.SquareCentre(k, c);
            }
        }
    }
}

QString mapFile(const QString& varnPath, const QString& mapName, const QString& name)
{
    return mapFolder(varnPath, mapName) + QLatin1Char('\\') + name;
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

void writeLocalities(SequentialWriter& file, const Localities& map)
{
    file.write(map.NLocality);
    for (int i = 1; i <= map.NLocality; ++i) {
        file.write(map.LocXY(i, 0), map.LocXY(i, 1));
    }
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

void writeLines(SequentialWriter& file, const MapLines& map)
{
    file.write(map.NLine);
    for (int i = 1; i <= map.NLine; ++i) {
        file.write(map.LineKind(i), map.LinePoints(i), map.MapLineColor(i), map.LineStyle(i),
                   map.LineOffset(i, 0), map.LineOffset(i, 1));
        for (int j = 1; j <= map.LinePoints(i); ++j) {
            file.write(map.LineXY(i, j, 0), map.LineXY(i, j, 1));
        }
    }
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
    map.ScaleDivisions = readDivisions(file);
    map.ScaleLength = file.readNumber();
    map.HanreiX = map.KanjiXY(1, 0);
    map.HanreiY = toInteger(map.KanjiXY(1, 1));
    return map;
}

void writePlaceNames(SequentialWriter& file, const PlaceNames& map)
{
    file.write(map.NKanji);
    for (int i = 1; i <= map.NKanji; ++i) {
        file.write(map.KanjiXY(i, 0), map.KanjiXY(i, 1));
        file.write(map.KanjiText(i));
    }
    const int scaleBar = map.NKanji + 1;
    file.write(map.KanjiXY(scaleBar, 0), map.KanjiXY(scaleBar, 1));
    file.write(map.ScaleLabel, map.ScaleDivisions, map.ScaleLength);
}

PolygonTable readAbsolutePolygons(SequentialReader& file)
{
    PolygonTable table;
    table.Nsquare = file.readCount();
    for (int k = 1; k <= table.Nsquare; ++k) {
        table.SquareVertices(k) = file.readCount();
        table.SquareCentre(k, 0) = toSingle(file.readNumber());
        table.SquareCentre(k, 1) = file.readSingle();
        table.SquareValue(k) = file.readNumber();
        for (int j = 1; j <= table.SquareVertices(k); ++j) {
            readPoint(file, [&](int c, float value) { table.SquareXY(k, j, c) = value; });
        }
    }
    return table;
}

void writeAbsolutePolygons(SequentialWriter& file, const PolygonTable& table)
{
    file.write(table.Nsquare);
    for (int k = 1; k <= table.Nsquare; ++k) {
        file.write(table.SquareVertices(k));
        file.write(table.SquareCentre(k, 0), table.SquareCentre(k, 1), table.SquareValue(k));
        for (int j = 1; j <= table.SquareVertices(k); ++j) {
            file.write(table.SquareXY(k, j, 0), table.SquareXY(k, j, 1));
        }
    }
}

PolygonTable readPolygons(SequentialReader& file)
{
    PolygonTable table = readAbsolutePolygons(file);
    makeRelative(table);
    return table;
}

QString mapFolder(const QString& varnPath, const QString& mapName)
{
    return varnPath + QStringLiteral("\\VarnData") + mapName + QStringLiteral("\\Map");
}

QString polygonFile(const QString& varnPath)
{
    return varnPath + QStringLiteral("\\VarnData\\Square.sbl");
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
    table = readSequentialFile(drive, polygonFile(varnPath), readPolygons);
}
