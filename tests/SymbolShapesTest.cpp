#include "render/SymbolShapes.h"

#include "platform/DrawingPainter.h"
#include "platform/StandardColors.h"
#include "tests/TestDrive.h"

#include <QHash>
#include <QPainter>

namespace {

HankoStyle symbol(int number, int size = 1)
{
    HankoStyle hanko;
    hanko.HankoNo = static_cast<qint16>(number);
    hanko.LineColor = 0;
    hanko.PaintColor = 12;
    hanko.PaintOn = 1;
    hanko.SymbolSize = static_cast<qint16>(size);
    return hanko;
}

/// Symbols are drawn about (300, 300) on a surface of their own.
DrawSurface drawn(TestSurvey& survey, const HankoStyle& hanko)
{
    DrawSurface target;
    SymbolShapes(survey.varn, survey.varn, {target, survey.frmMap}).DrawHanko(hanko, 300, 300);
    return target;
}

/// The surface painted at 192 dpi.
QImage paintedAsPlotted(const DrawSurface& surface)
{
    QImage image(80, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(surface.drawing(), painter, 2 / TwipsPerPixel);
    return image;
}

} // namespace

TEST(SymbolShapes, ANumberNamesFamilyDesignSizeAndAspect)
{
    struct Row
    {
        int number;
        float halfWidth;
        float halfHeight;
    };
    // Plain boxes and circles, and the sector closing the numbering.
    const Row boxes[] = {{1, 96, 96}, {13, 48, 48}, {25, 96, 48}, {37, 48, 96}};
    const Row circles[] = {{49, 100, 100}, {60, 50, 50}, {71, 50, 100}, {82, 100, 50}};
    const Row sectors[] = {{93, 100, 100}, {132, 50, 100}, {133, 100, 50}, {152, 100, 50}};
    TestSurvey survey;
    for (const Row& row : boxes) {
        const auto box = operationsOf<BoxOperation>(drawn(survey, symbol(row.number)).drawing()).at(0);
        EXPECT_FLOAT_EQ(box.width / 2, row.halfWidth) << row.number;
        EXPECT_FLOAT_EQ(box.height / 2, row.halfHeight) << row.number;
    }
    for (const Row& row : circles) {
        const auto circle = operationsOf<EllipseOperation>(drawn(survey, symbol(row.number)).drawing()).at(0);
        EXPECT_FLOAT_EQ(circle.halfWidth, row.halfWidth) << row.number;
        EXPECT_FLOAT_EQ(circle.halfHeight, row.halfHeight) << row.number;
    }
    for (const Row& row : sectors) {
        const auto sector = operationsOf<ArcOperation>(drawn(survey, symbol(row.number)).drawing()).at(0);
        EXPECT_FLOAT_EQ(sector.halfWidth, row.halfWidth) << row.number;
        EXPECT_FLOAT_EQ(sector.halfHeight, row.halfHeight) << row.number;
        EXPECT_TRUE(sector.closed());
    }
    EXPECT_EQ(operationsOf<ArcOperation>(drawn(survey, symbol(93)).drawing()).at(0).fill, QBColor(12));
}

TEST(SymbolShapes, SizeAndWidthCodesBeyondTheTablesAreTheLargest)
{
    TestSurvey survey;
    const std::pair<int, float> sizes[] = {{0, 50}, {1, 100}, {2, 150}, {3, 200}, {7, 200}, {-1, 200}};
    for (const auto& [code, radius] : sizes) {
        const DrawSurface target = drawn(survey, symbol(49, code));
        EXPECT_FLOAT_EQ(operationsOf<EllipseOperation>(target.drawing()).at(0).halfWidth, radius) << code;
    }
    const std::pair<int, int> widths[] = {{0, 1}, {1, 3}, {2, 5}, {3, 7}, {-1, 7}};
    for (const auto& [code, width] : widths) {
        HankoStyle hanko = symbol(49);
        hanko.LineThick = static_cast<qint16>(code);
        EXPECT_EQ(drawn(survey, hanko).drawing().pens.at(0).width, width) << code;
    }
}

TEST(SymbolShapes, PolygonsAreStretchedAndSlanted)
{
    // Polygon 2 of the test survey is the line from (-10, -5) to (10, 5); 6 twips a unit.
    TestSurvey survey;
    struct Row
    {
        int number;
        QPointF end;
    };
    const Row rows[] = {
        {154, {360, 330}}, // upright
        {156, {330, 360}}, // half as wide, twice as high
        {158, {390, 330}}, // slanted right
        {160, {330, 330}}, // slanted left
    };
    for (const Row& row : rows) {
        const DrawSurface target = drawn(survey, symbol(row.number));
        EXPECT_EQ(target.drawing().points.back(), row.end) << row.number;
    }
    EXPECT_EQ(operationsOf<PolylineOperation>(drawn(survey, symbol(153)).drawing()).at(0).points, 5U)
        << "a closed figure repeats its first vertex";
}

TEST(SymbolShapes, NumbersWithoutADesign)
{
    TestSurvey survey;
    for (const int number : {0, -1, -300}) {
        EXPECT_TRUE(drawn(survey, symbol(number)).drawing().operations.empty()) << number;
    }
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
    for (const int number : {161, 30000}) {
        EXPECT_TRUE(drawn(survey, symbol(number)).drawing().operations.empty()) << number;
        EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), QStringLiteral("iSymbol=%1").arg(number)));
    }
    HankoStyle noColor = symbol(49);
    noColor.LineColor = 16;
    EXPECT_EQ(errorOf([&] { drawn(survey, noColor); }).number(), ErrorNumber::InvalidProcedureCall);
}

TEST(SymbolShapes, EverySymbolLooksDifferentAlsoAtTheSmallestSize)
{
    TestSurvey survey;
    for (const int size : {0, 1}) {
        QHash<QByteArray, int> seen;
        for (int number = 1; number <= symbolCount(survey.varn); ++number) {
            const QImage image = paintedAsPlotted(drawn(survey, symbol(number, size)));
            const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
            EXPECT_FALSE(seen.contains(pixels)) << number << " looks like " << seen.value(pixels);
            seen.insert(pixels, number);
        }
    }
}

TEST(SymbolShapes, APolygonOfOnePointDrawsNothing)
{
    DrawSurface target;
    Polygon(MapGeometry(), target, 1, 10, 10, QBColor(0));
    EXPECT_TRUE(target.drawing().operations.empty());
}
