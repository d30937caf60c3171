#include "mapdata/MapFiles.h"

#include "tests/support/TestDrive.h"

namespace {

template <typename Map>
ErrorNumber errorOfReading(Map (*read)(SequentialReader&), const QByteArray& text)
{
    return errorOf([&] {
               SequentialReader file(QString::fromUtf8(text));
               read(file);
           })
        .number();
}

QByteArray repeated(const QByteArray& record, int times)
{
    return record.repeated(times);
}

} // namespace

TEST(MapFiles, CountsGovernTheReading)
{
    SequentialReader none(QStringLiteral("0\r\n"));
    EXPECT_EQ(readLocalities(none).NLocality, 0);
    SequentialReader onlyScaleBar(QStringLiteral("0\r\n1,2\r\n\"km\",1,10\r\n"));
    EXPECT_EQ(readPlaceNames(onlyScaleBar).ScaleLength, 10);
    SequentialReader shortLines(QStringLiteral("2\r\n0,0,0,0,0,0\r\n0,1,0,0,0,0\r\n5,6\r\n"));
    const MapLines lines = readLines(shortLines);
    EXPECT_EQ(lines.LinePoints(1), 0);
    EXPECT_EQ(lines.LineXY(2, 1, 1), 6);
}

TEST(MapFiles, FilesAtTheirBoundsLoadAndOneRecordMoreDoesNot)
{
    const auto localities = [](int n) { return QByteArray::number(n) + "\r\n" + repeated("1,2\r\n", n); };
    const auto names = [](int n) {
        return QByteArray::number(n) + "\r\n" + repeated("1,2\r\n\"x\"\r\n", n) + "1,2\r\n\"km\",1,1\r\n";
    };
    const auto line = [](int points) {
        return "0," + QByteArray::number(points) + ",0,0,0,0\r\n" + repeated("1,2\r\n", points);
    };
    const auto polygon = [](int n) {
        return QByteArray::number(n) + "\r\n0,0,0\r\n" + repeated("1,2\r\n", n);
    };
    const auto reads = [](auto read, const QByteArray& text) {
        SequentialReader file(QString::fromUtf8(text));
        EXPECT_NO_THROW(read(file));
    };

    reads(readLocalities, localities(1000));
    reads(readPlaceNames, names(29));
    reads(readLines, "100\r\n" + repeated(line(1), 100));
    reads(readLines, "1\r\n" + line(500));
    reads(readPolygons, "200\r\n" + repeated(polygon(20), 200));

    constexpr auto Subscript = ErrorNumber::SubscriptOutOfRange;
    EXPECT_EQ(errorOfReading(readLocalities, localities(1001)), Subscript);
    EXPECT_EQ(errorOfReading(readPlaceNames, names(30)), Subscript);
    EXPECT_EQ(errorOfReading(readLines, "101\r\n" + repeated(line(1), 101)), Subscript);
    EXPECT_EQ(errorOfReading(readLines, "1\r\n" + line(501)), Subscript);
    EXPECT_EQ(errorOfReading(readPolygons, "201\r\n" + repeated(polygon(2), 201)), Subscript);
    EXPECT_EQ(errorOfReading(readPolygons, "1\r\n" + polygon(21)), Subscript);
    const QByteArray scaleBar = "0\r\n1,2\r\n\"km\",";
    reads(readPlaceNames, scaleBar + "1000,1\r\n");
    reads(readPlaceNames, scaleBar + "0,1\r\n");
    EXPECT_EQ(errorOfReading(readPlaceNames, scaleBar + "1001,1\r\n"), Subscript);
    EXPECT_EQ(errorOfReading(readLocalities, "-1\r\n"), Subscript);
    EXPECT_EQ(errorOfReading(readLines, "-1\r\n"), Subscript);
    EXPECT_EQ(errorOfReading(readLocalities, "40000\r\n"), ErrorNumber::Overflow);
    EXPECT_EQ(errorOfReading(readLocalities, "3\r\n1,2\r\n3"), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(errorOfReading(readPlaceNames, "0\r\n"), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(errorOfReading(readLines, "1\r\n0,1,0,0,0,0\r\nx,1\r\n"), ErrorNumber::TypeMismatch);
}
