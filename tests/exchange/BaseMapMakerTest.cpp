#include "exchange/BaseMapMaker.h"

#include "exchange/MapFrame.h"
#include "tests/support/TestDrive.h"

namespace {

const QRectF NoLegend;
/// A tenth of a degree a map unit, from 0 east, 70 north at the upper left.
const QString Plain = QStringLiteral("+proj=pipeline +step +proj=affine +xoff=0 +yoff=700 +s11=10 +s22=-10");

QByteArray feature(const QByteArray& name, const QByteArray& type, const QByteArray& coordinates)
{
    return R"({"type":"Feature","properties":{"name":")" + name + R"("},"geometry":{"type":")" + type +
           R"(","coordinates":)" + coordinates + "}}";
}

QByteArray collection(const QByteArrayList& features)
{
    return R"({"type":"FeatureCollection","features":[)" + features.join(',') + "]}";
}

/// A coast of `points` points between longitudes `west` and `east`; its zigzag is `height` degrees high.
QByteArray zigzag(int points, double west, double east, double north, double height)
{
    QByteArrayList places;
    for (int i = 0; i < points; ++i) {
        const double x = west + (east - west) * i / (points - 1);
        places << '[' + QByteArray::number(x, 'f', 6) + ',' + QByteArray::number(north + (i % 2) * height) +
                      ']';
    }
    return '[' + places.join(',') + ']';
}

struct Made
{
    MapLines lines;
    QString report;
};

Made madeOf(const QByteArray& layer, const QRectF& legend = NoLegend)
{
    const TestDrive drive;
    drive.write(QStringLiteral("C:\\map.geojson"), layer);
    const QString path = drive.drive().hostPath(QStringLiteral("C:\\map.geojson"));
    ImportReport report;
    const MapLines lines = makeBaseMap(MapFrame(Plain, true), legend, {path}, report);
    return {lines, report.text()};
}

} // namespace

TEST(BaseMapMaker, KindsAreToldByNamesAndOutlinesAreLines)
{
    const QByteArray line = "[[1,1],[50,40]]";
    const auto [lines, report] = madeOf(collection({
        feature("mainland", "Polygon", "[[[1,1],[50,1],[50,40],[1,1]]]"),
        feature("grens A-B", "LineString", line),
        feature("River Ouse", "MultiLineString", "[" + line + "]"),
        feature("Lago Maggiore", "Polygon", "[[[5,5],[9,5],[9,9],[5,5]]]"),
        feature("a town", "Point", "[1,1]"),
        feature("no place", "LineString", "[]"),
    }));
    struct Row
    {
        int kind;
        int color;
        int style;
    };
    const Row rows[] = {{0, 0, 0}, {1, 0, 0}, {2, 8, 3}, {3, 1, 0}, {4, 9, 0}};
    ASSERT_EQ(lines.NLine, 5);
    for (int i = 1; i <= lines.NLine; ++i) {
        const Row& row = rows[lines.LineKind(i)];
        EXPECT_EQ(lines.MapLineColor(i), row.color) << i;
        EXPECT_EQ(lines.LineStyle(i), row.style) << i;
    }
    const int end = lines.LinePoints(2); // the mainland
    EXPECT_EQ(lines.LineXY(2, 1, 0), lines.LineXY(2, end, 0));
    EXPECT_EQ(lines.LineXY(2, 1, 1), lines.LineXY(2, end, 1));
}

TEST(BaseMapMaker, LinesEndAtTheEdgeAndAtTheLegend)
{
    const QRectF legend(0, 0, 300, 300);
    const auto [lines, report] = madeOf(feature("", "LineString", "[[-50,50],[150,50]]"), legend);
    ASSERT_EQ(lines.NLine, 3); // the neat-line, the legend's, and what is right of the legend
    EXPECT_EQ(lines.LineXY(3, 1, 0), 300);
    EXPECT_EQ(lines.LineXY(3, 1, 1), 200);
    EXPECT_EQ(lines.LineXY(3, lines.LinePoints(3), 0), 1000);
}

TEST(BaseMapMaker, ALongCoastStaysWholeAndShortRiversGoFirst)
{
    QByteArrayList features = {feature("coast", "LineString", zigzag(4000, 1, 99, 40, 0.5))};
    for (int i = 0; i < 150; ++i) {
        features << feature("river", "LineString", zigzag(2, 1, 2 + 0.1 * i, 1 + 0.2 * i, 0));
        features << feature("island", "LineString", zigzag(3, 90, 90.05, 1 + 0.2 * i, 0.05));
    }
    const auto [lines, report] = madeOf(collection(features));
    EXPECT_TRUE(report.endsWith(QStringLiteral("small ones left out"))) << qPrintable(report);
    EXPECT_EQ(lines.NLine, 100);
    int coastPieces = 0;
    for (int i = 2; i <= lines.NLine; ++i) {
        if (lines.LineKind(i) == 1) {
            ++coastPieces;
            const int end = lines.LinePoints(i);
            const bool last = lines.LineKind(i + 1) != 1;
            EXPECT_EQ(lines.LineXY(i, end, 0), last ? 990 : lines.LineXY(i + 1, 1, 0));
        } else {
            EXPECT_GT(lines.LineXY(i, 2, 0) - lines.LineXY(i, 1, 0), 60) << "a short river";
        }
    }
    EXPECT_EQ(coastPieces, 9); // 3999 steps, 499 a piece
}

TEST(BaseMapMaker, FilesThatAreNoLayersAreNamed)
{
    EXPECT_EQ(errorOf([] { madeOf("no layer"); }).number(), ErrorNumber::TypeMismatch);
    ImportReport report;
    const RunTimeError error = errorOf(
        [&] { makeBaseMap(MapFrame(Plain, true), NoLegend, {QStringLiteral("/no/such.gpkg")}, report); });
    EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
    EXPECT_EQ(error.place().path, QStringLiteral("/no/such.gpkg"));
}
