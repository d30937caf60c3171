#include "mapdata/MapFiles.h"

#include "tests/support/TestDrive.h"

TEST(MapFiles, FilesAtTheirBoundsLoadAndOneRecordMoreDoesNot)
{
    const auto records = [](int count, const QString& record) {
        return QString::number(count) + "\r\n" + record.repeated(count);
    };
    const auto names = [&](int count, int divisions) {
        return records(count, "1,2\r\n\"x\"\r\n") + QString("1,2\r\n\"km\",%1,1\r\n").arg(divisions);
    };
    const auto line = [](int points) {
        return QString("0,%1,0,0,0,0\r\n").arg(points) + QString("1,2\r\n").repeated(points);
    };
    const auto polygon = [](int n) {
        return QString("%1\r\n0,0,0\r\n").arg(n) + QString("1,2\r\n").repeated(n);
    };
    const auto expectBound = [](const char* what, auto read, const QString& most, const QString& tooMany) {
        SCOPED_TRACE(what);
        SequentialReader full(most);
        EXPECT_NO_THROW(read(full));
        SequentialReader beyond(tooMany);
        EXPECT_EQ(errorOf([&] { read(beyond); }).number(), ErrorNumber::SubscriptOutOfRange);
    };
    expectBound("localities", readLocalities, records(1000, "1,2\r\n"), records(1001, "1,2\r\n"));
    expectBound("names", readPlaceNames, names(29, 1), names(30, 1));
    expectBound("divisions", readPlaceNames, names(0, 1000), names(0, 1001));
    expectBound("lines", readLines, records(100, line(1)), records(101, line(1)));
    expectBound("points", readLines, records(1, line(500)), records(1, line(501)));
    expectBound("polygons", readPolygons, records(200, polygon(2)), records(201, polygon(2)));
    expectBound("vertices", readPolygons, records(1, polygon(20)), records(1, polygon(21)));
}
