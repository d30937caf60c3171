#include "exchange/LayerSource.h"

#include "exchange/LayerFiles.h"
#include "exchange/TablePlaces.h"
#include "tests/exchange/SurveyText.h"
#include "tests/support/TestDrive.h"

#include <ogrsf_frmts.h>

namespace {

const QByteArray GeoJson = R"({"type": "FeatureCollection", "features": [
    {"type": "Feature", "properties": {"name": "Aa", "rain": ["ame", "uyu"], "snow": null},
     "geometry": {"type": "Point", "coordinates": [10.5, -2.25]}},
    {"type": "Feature", "properties": {"name": "river"},
     "geometry": {"type": "LineString", "coordinates": [[10, 3], [11, 4]]}},
    {"type": "Feature", "properties": {"name": "Bö", "rain": ["yuki"], "snow": "mĩ", "x": 11, "source": "B"},
     "geometry": {"type": "Point", "coordinates": [11, 3.5]}}]})";

const QByteArray Kml = R"(<kml xmlns="http://www.opengis.net/kml/2.2"><Document>
    <Folder><name>North</name><Placemark><name>Bö</name><Point><coordinates>11,3.5,0</coordinates></Point></Placemark>
    </Folder><Folder><name>South</name>
    <Placemark><name>Aa</name><Point><coordinates>10.5,-2.25</coordinates></Point></Placemark>
    <Placemark><name>coast</name><Polygon><outerBoundaryIs><LinearRing>
    <coordinates>10,3 11,4 12,3 10,3</coordinates></LinearRing></outerBoundaryIs></Polygon></Placemark>
    </Folder></Document></kml>)";

const QByteArray Gpx = R"(<gpx version="1.1" creator="x" xmlns="http://www.topografix.com/GPX/1/1">
    <wpt lat="-2.25" lon="10.5"><ele>12</ele><name>Aa</name><cmt>ame</cmt></wpt>
    <wpt lat="3.5" lon="11"><name>Bö</name><cmt>yuki</cmt></wpt>
    <trk><trkseg><trkpt lat="0" lon="0"/><trkpt lat="1" lon="1"/></trkseg></trk></gpx>)";

class Layers : public testing::Test
{
protected:
    QString put(const char* name, const QByteArray& bytes)
    {
        files.write(QStringLiteral("C:\\") + QLatin1String(name), bytes);
        return files.hostPath(QLatin1String(name));
    }
    SourceSurvey read(const QString& path)
    {
        SourceChoices choices;
        choices.path = path;
        return readLayerSource(choices);
    }
    /// Points with a name and an answer, in the reference system of that EPSG code, or in none (0).
    QString putPoints(const char* name, const char* driver, int epsg, const std::vector<QPointF>& points)
    {
        GDALAllRegister();
        QString path = files.hostPath(QLatin1String(name));
        OGRSpatialReference system;
        system.importFromEPSG(epsg == 0 ? 4326 : epsg);
        GDALDataset* file = GetGDALDriverManager()->GetDriverByName(driver)->Create(
            path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr);
        OGRLayer* layer = file->CreateLayer("points", epsg == 0 ? nullptr : &system, wkbPoint);
        for (const char* heading : {"name", "rain"}) {
            OGRFieldDefn field(heading, OFTString);
            layer->CreateField(&field);
        }
        for (const QPointF point : points) {
            OGRFeature feature(layer->GetLayerDefn());
            feature.SetField(0, layer->GetFeatureCount() == 0 ? "Aa" : "Bö");
            feature.SetField(1, "ame; uyu");
            const OGRPoint place(point.x(), point.y());
            feature.SetGeometry(&place);
            EXPECT_EQ(layer->CreateFeature(&feature), OGRERR_NONE);
        }
        GDALClose(file);
        return path;
    }

    TestDrive files;
};

} // namespace

TEST_F(Layers, PointsAreLocalitiesAndAttributesItems)
{
    const QString json = put("a.geojson", GeoJson);
    const SourceSurvey survey = read(json);
    EXPECT_EQ(textOf(survey),
              QStringLiteral("Aa Aa 10.5 -2.25\nBö Bö 11 3.5\nrain: ame+uyu|yuki\nsnow: |mĩ"));
    EXPECT_EQ(survey.baseMapLayers, QStringList(json));
    EXPECT_EQ(survey.report.text(), QStringLiteral("Columns that were taken for no items: source"));

    const QString zip = files.hostPath(QStringLiteral("a.zip"));
    const QString zipped = QStringLiteral("/vsizip/") + zip + QStringLiteral("/in/a.geojson");
    VSILFILE* file = VSIFOpenL(zipped.toUtf8().constData(), "wb");
    const auto size = static_cast<std::size_t>(GeoJson.size());
    EXPECT_EQ(VSIFWriteL(GeoJson.constData(), 1, size, file), size);
    VSIFCloseL(file);
    EXPECT_TRUE(isLayer(zip));
    EXPECT_EQ(textOf(read(zip)), textOf(survey));
    EXPECT_EQ(read(zip).baseMapLayers, QStringList(zipped));

    EXPECT_EQ(textOf(read(put("a.gpx", Gpx))),
              QStringLiteral("Aa Aa 10.5 -2.25\nBö Bö 11 3.5\ncmt: ame|yuki"));
}

TEST_F(Layers, PlacemarksOfAllFoldersAreLocalities)
{
    const QString kml = put("a.kml", Kml);
    ImportReport report;
    const PlacedLocalities placed = readPlacedLocalities(kml, {}, report);
    EXPECT_EQ(textOf({{}, placed.localities, {}, false, false, {}, {}}),
              QStringLiteral("Bö Bö 11 3.5\nAa Aa 10.5 -2.25"));
    EXPECT_EQ(placed.baseMapLayers, QStringList(kml));
    EXPECT_TRUE(isLayer(kml));
    EXPECT_TRUE(errorOf([&] { read(kml); }).message().contains(QStringLiteral("no column of answers")));
}

TEST_F(Layers, EveryReferenceSystemBecomesDegrees)
{
    struct Row
    {
        const char* name;
        const char* driver;
        std::vector<QPointF> points;
        int epsg;
        bool plane;
    };
    const Row rows[] = {
        {"m.gpkg", "GPKG", {{1168854.653, -250533.255}, {1224514.399, 389860.758}}, 3857, false},
        {"d.shp", "ESRI Shapefile", {{10.5, -2.25}, {11, 3.5}}, 4326, false},
        {"n.shp", "ESRI Shapefile", {{10.5, -2.25}, {11, 3.5}}, 0, false},
        {"p.shp", "ESRI Shapefile", {{10.5, -2.25}, {1100, 3.5}}, 0, true},
    };
    for (const Row& row : rows) {
        const SourceSurvey survey = read(putPoints(row.name, row.driver, row.epsg, row.points));
        ASSERT_EQ(survey.localities.size(), 2U) << row.name;
        EXPECT_EQ(survey.plane, row.plane) << row.name;
        EXPECT_NEAR(survey.localities[0].position.x(), 10.5, 1e-5) << row.name;
        EXPECT_NEAR(survey.localities[0].position.y(), -2.25, 1e-5) << row.name;
        EXPECT_EQ(survey.items.front().answers[1],
                  QStringList({QStringLiteral("ame"), QStringLiteral("uyu")}));
        EXPECT_TRUE(survey.baseMapLayers.isEmpty()) << row.name;
    }
    EXPECT_TRUE(errorOf([&] { read(put("b.geojson", "{\"type\": \"Feature")); })
                    .place()
                    .path.endsWith(QStringLiteral("b.geojson")));
}
